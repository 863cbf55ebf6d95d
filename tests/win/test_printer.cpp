#include "win/test_printer.h"

#include <cstdio>
#include <sstream>

#include <gtest/gtest.h>

#include "support/windows_seen.h"
#include "win/unique.h"
#include "win/windows.h"

#include <winspool.h>

namespace {

constexpr char kName[] = "Quillon test printer";

constexpr char kDescription[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Product: "(Test)"
*PSVersion: "(3010.000) 0"
*Manufacturer: "Test"
*ModelName: "Quillon test printer"
*ShortNickName: "Quillon test printer"
*NickName: "Quillon test printer"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*TTRasterizer: Type42
*DefaultResolution: 600dpi
*OpenUI *PageSize: PickOne
*DefaultPageSize: Letter
*PageSize Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: Letter
*PageRegion Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: Letter
*ImageableArea Letter/Letter: "18 18 594 774"
*DefaultPaperDimension: Letter
*PaperDimension Letter/Letter: "612 792"
*DefaultFont: Courier
*Font Courier: Standard "(002.004S)" Standard ROM
)ppd";

void Write(const std::string& path, const std::string& bytes) {
    const win::UniqueFile file(
        ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

std::string Bytes(const std::string& path) {
    const win::UniqueFile file(
        ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) return "";
    std::string bytes(::GetFileSize(file.get(), nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    return bytes;
}

// The Unix path of a path on drive Z:, which is the root directory.
std::string UnixPath(const std::string& path) {
    std::string result = path.substr(2);
    for (char& c : result) c = c == '\\' ? '/' : c;
    return result;
}

// What the beginning of a text in XML stands for.
char Character(const std::string& xml) {
    if (xml.rfind("&lt;", 0) == 0) return '<';
    if (xml.rfind("&gt;", 0) == 0) return '>';
    if (xml.rfind("&amp;", 0) == 0) return '&';
    if (xml.rfind("&quot;", 0) == 0) return '"';
    return xml[0] == '&' ? ' ' : xml[0];  // txtwrite writes a blank as one that does not break
}

}  // namespace

TestPrinter::TestPrinter(const std::string& folder) : folder_(folder) {
    installDriver();
    std::string port = UnixPath(folder_ + "\\print.ps");
    PRINTER_INFO_2A info{};
    info.pPrinterName = const_cast<char*>(kName);
    info.pPortName = port.data();
    info.pDriverName = const_cast<char*>(kName);
    info.pPrintProcessor = const_cast<char*>("WinPrint");
    info.pDatatype = const_cast<char*>("RAW");
    HANDLE printer = ::AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&info));
    if (printer) {
        ::ClosePrinter(printer);
    } else if (::OpenPrinterA(info.pPrinterName, &printer, nullptr)) {  // of an earlier test
        ::SetPrinterA(printer, 2, reinterpret_cast<BYTE*>(&info), 0);
        ::ClosePrinter(printer);
    }
    EXPECT_TRUE(::SetDefaultPrinterA(kName)) << ::GetLastError();
}

void TestPrinter::installDriver() const {
    std::string description = folder_ + "\\test.ppd";
    Write(description, kDescription);
    DRIVER_INFO_3A driver{};
    driver.cVersion = 3;
    driver.pName = const_cast<char*>(kName);
    driver.pEnvironment = const_cast<char*>("Windows NT x86");
    driver.pDriverPath = const_cast<char*>("wineps.drv");
    driver.pConfigFile = const_cast<char*>("wineps.drv");
    driver.pDataFile = description.data();
    driver.pDefaultDataType = const_cast<char*>("RAW");
    EXPECT_TRUE(::AddPrinterDriverExA(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                                      APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY))
        << ::GetLastError();
}

bool TestPrinter::hasPrinted() const {
    return ::GetFileAttributesA((folder_ + "\\print.ps").c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string TestPrinter::read(const std::string& options) const {
    const std::string out = folder_ + "\\read.txt";
    ::DeleteFileA(out.c_str());
    // start.exe does not wait for a Unix program, so the file gets its name when it is whole.
    Write(folder_ + "\\read.sh", "cd '" + UnixPath(folder_) + "'\ngs -q -dSAFER -dBATCH -dNOPAUSE " +
                                     options + " print.ps >reading 2>&1\nmv reading read.txt\n");
    std::string command = "start.exe /unix /bin/sh " + UnixPath(folder_) + "/read.sh";
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                          &process)) {
        return "";
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    const auto isThere = [&] { return ::GetFileAttributesA(out.c_str()) != INVALID_FILE_ATTRIBUTES; };
    EXPECT_TRUE(seen::Until(isThere)) << "Ghostscript did not answer";
    return Bytes(out);
}

// Ghostscript's txtwrite in its format 1: <line> holds <char bbox="18 32 24 32" c="&#xa0;"/>.
std::vector<TestPrinter::Line> TestPrinter::lines() const {
    std::vector<Line> lines;
    std::istringstream xml(read("-sDEVICE=txtwrite -dTextFormat=1 -o -"));
    int page = 0;
    for (std::string row; std::getline(xml, row);) {
        if (row == "<page>") ++page;
        if (row == "<line>") lines.push_back({page, 0, 0, ""});
        int left = 0;
        int base = 0;
        if (std::sscanf(row.c_str(), "<char bbox=\"%d %d", &left, &base) != 2) continue;
        Line& line = lines.back();
        if (line.text.empty()) line = {page, left, base, ""};
        line.text += Character(row.substr(row.find("c=\"") + 3));
    }
    return lines;
}

std::vector<TestPrinter::Box> TestPrinter::ink() const {
    std::vector<Box> boxes;
    std::istringstream said(read("-sDEVICE=bbox"));
    for (std::string row; std::getline(said, row);) {
        Box box;
        if (std::sscanf(row.c_str(), "%%%%HiResBoundingBox: %lf %lf %lf %lf", &box.left, &box.bottom,
                        &box.right, &box.top) == 4) {
            boxes.push_back(box);
        }
    }
    return boxes;
}
