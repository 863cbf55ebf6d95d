#include "document/rich_edit.h"

#include "win/windows.h"

#include <psapi.h>

#include <algorithm>
#include <cstring>

#include "win/error.h"
#include "win/system_dll.h"
#include "win/unicode.h"

namespace document {
namespace {

constexpr LONG kTextLimit = 0x7FFFFFFE;
constexpr WPARAM kUnicodeText = SF_TEXT | SF_UNICODE;

constexpr double kMegabyte = 1 << 20;

// What is left of the process's address space, in megabytes.
double AddressSpaceLeft() {
    MEMORYSTATUSEX memory{};
    memory.dwLength = sizeof memory;
    ::GlobalMemoryStatusEx(&memory);
    return static_cast<double>(memory.ullAvailVirtual) / kMegabyte;
}

// What the process has taken of the system's memory, in megabytes.
double MemoryTaken() {
    constexpr win::DelayLoaded<decltype(&::GetProcessMemoryInfo)> kGetMemoryInfo{"psapi.dll",
                                                                                 "GetProcessMemoryInfo"};
    PROCESS_MEMORY_COUNTERS counters{};
    kGetMemoryInfo(::GetCurrentProcess(), &counters, static_cast<DWORD>(sizeof counters));
    return static_cast<double>(counters.PagefileUsage) / kMegabyte;
}

struct Source {
    explicit Source(std::u16string_view text) : rest(text), size(text.size()) {}

    std::u16string_view rest;
    std::size_t size;  // of the whole
    double leftBefore = AddressSpaceLeft();
    double takenBefore = MemoryTaken();
    unsigned chunks = 0;
    bool tooLarge = false;
};

// The control does not survive running out of memory. Once it has the text, or is given no more of it, it
// lays out the rows of what it has, for which some versions take thirteen times the memory of the text.
bool MemoryWillEnd(const Source& source) {
    constexpr double kRest = 256;  // megabytes, for everything else
    constexpr double kWithRows = 14;
    constexpr double kTelling = 24;  // below that the heap's own steps hide what the text takes
    const double used = MemoryTaken() - source.takenBefore;
    const auto fed = static_cast<double>(source.size - source.rest.size());
    const double whole = used < kTelling ? used : used / fed * static_cast<double>(source.size);
    return source.leftBefore < kRest + whole * kWithRows;
}

// A chunk that ended between CR and LF would give an extra line.
DWORD CALLBACK Feed(DWORD_PTR cookie, LPBYTE buffer, LONG size, LONG* done) {
    auto& source = *reinterpret_cast<Source*>(cookie);
    auto& rest = source.rest;
    constexpr unsigned kBetweenLooks = 64;  // chunks
    source.tooLarge = source.chunks++ % kBetweenLooks == 0 && MemoryWillEnd(source);
    *done = 0;
    if (source.tooLarge) return ERROR_NOT_ENOUGH_MEMORY;
    std::size_t count = std::min(rest.size(), static_cast<std::size_t>(size) / sizeof(char16_t));
    if (count > 1 && count < rest.size() && rest[count - 1] == u'\r') --count;
    std::memcpy(buffer, rest.data(), count * sizeof(char16_t));
    rest.remove_prefix(count);
    *done = static_cast<LONG>(count * sizeof(char16_t));
    return 0;
}

struct Sink {
    std::u16string text;
    std::size_t bytes = 0;
};

DWORD CALLBACK Collect(DWORD_PTR cookie, LPBYTE buffer, LONG size, LONG* done) {
    auto& sink = *reinterpret_cast<Sink*>(cookie);
    const auto count = static_cast<std::size_t>(size);
    sink.text.resize((sink.bytes + count + 1) / sizeof(char16_t));
    std::memcpy(reinterpret_cast<char*>(sink.text.data()) + sink.bytes, buffer, count);
    sink.bytes += count;
    *done = size;
    return 0;
}

std::u16string StreamOut(HWND control, WPARAM format, std::size_t expected) {
    Sink sink;
    sink.text.reserve(expected + 1);
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&sink), 0, Collect};
    ::SendMessageW(control, EM_STREAMOUT, format, reinterpret_cast<LPARAM>(&stream));
    return std::move(sink.text);
}

// The text is UTF-16, and Undo is to take it back.
constexpr SETTEXTEX kAsEdit{ST_SELECTION | ST_KEEPUNDO, 1200};

// A text that begins like this the control would take for formatted.
bool LooksFormatted(std::u16string_view text) {
    return text.starts_with(u"{\\rtf") || text.starts_with(u"{urtf");
}

}  // namespace

void RichEdit::create(HWND parent, int id, const Font& font) {
    // Loading the library registers the class, once for the process. The second library is a shell around the
    // first, which it would look for beside the program.
    win::LoadSystemDll("riched20.dll");
    win::LoadSystemDll("riched32.dll");
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | WS_TABSTOP | ES_MULTILINE |
                        ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_NOHIDESEL | ES_DISABLENOSCROLL |
                        ES_NOOLEDRAGDROP;
    attach(win::Check(::CreateWindowExW(WS_EX_CLIENTEDGE, L"RICHEDIT", L"", style, 0, 0, 0, 0, parent,
                                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                        ::GetModuleHandleW(nullptr), nullptr)));
    // In this mode setting a font is no change of the text that Undo would take back.
    send(EM_SETTEXTMODE, TM_PLAINTEXT);
    send(EM_EXLIMITTEXT, 0, kTextLimit);
    setWordWrap(false);
    setFont(font);
    send(EM_SETEVENTMASK, 0, ENM_CHANGE | ENM_SELCHANGE);
}

bool RichEdit::load(std::u16string_view text) {
    const LRESULT events = send(EM_SETEVENTMASK, 0, ENM_NONE);
    Source source(text);
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&source), 0, Feed};
    send(EM_STREAMIN, kUnicodeText, reinterpret_cast<LPARAM>(&stream));
    select(0, 0);
    send(EM_EMPTYUNDOBUFFER);
    setChanged(false);
    send(EM_SETEVENTMASK, 0, events);
    if (source.tooLarge || stream.dwError != 0 || !source.rest.empty()) throw PageTooLarge();
    return this->text() == text;
}

std::u16string RichEdit::text() const {
    return StreamOut(hwnd(), kUnicodeText, static_cast<std::size_t>(textLength()));
}

long RichEdit::textLength() const {
    GETTEXTLENGTHEX how{GTL_NUMCHARS | GTL_PRECISE, 1200};
    return static_cast<long>(send(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&how)));
}

Selection RichEdit::selection() const {
    CHARRANGE range{};
    send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    // With all selected the end lies beyond the text.
    const long length = textLength();
    return {std::min<long>(range.cpMin, length), std::min<long>(range.cpMax, length)};
}

void RichEdit::select(long start, long end) {
    CHARRANGE range{start, end};
    send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

std::u16string RichEdit::selectedText() const {
    const auto length = static_cast<std::size_t>(selection().length());
    if (length == 0) return {};
    std::u16string text = StreamOut(hwnd(), kUnicodeText | SFF_SELECTION, length);
    text.resize(std::min(text.size(), length));
    return text;
}

void RichEdit::replaceSelection(std::u16string_view text) {
    if (isReadOnly()) return;
    if (text.find(u'\0') != std::u16string_view::npos) throw win::Failure("The text holds a NUL.");
    if (text.empty()) {
        if (selection().length() == 0) return;
        send(WM_CLEAR);
        // Not every version of the control counts this as a change.
        setChanged(true);
        return;
    }
    if (LooksFormatted(text)) {
        replaceSelection(text.substr(0, 1));
        text.remove_prefix(1);
    }
    const std::u16string terminated(text);
    win::Check(
        send(EM_SETTEXTEX, reinterpret_cast<WPARAM>(&kAsEdit), reinterpret_cast<LPARAM>(terminated.c_str())));
}

void RichEdit::setReadOnly() {
    send(EM_SETREADONLY, TRUE);
}

bool RichEdit::isReadOnly() const {
    return (::GetWindowLongPtrW(hwnd(), GWL_STYLE) & ES_READONLY) != 0;
}

void RichEdit::setWordWrap(bool wrap) {
    wordWrap_ = wrap;
    send(EM_SETTARGETDEVICE, 0, wrap ? 0 : 1);
}

void RichEdit::setFont(const Font& font) {
    CHARFORMATW format{};
    // Naming the effects in the mask only takes them away: the system's own font may be bold.
    format.dwMask = CFM_FACE | CFM_SIZE | CFM_CHARSET | CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE;
    apply(font, format);
}

void RichEdit::setFace(const std::string& face) {
    CHARFORMATW format{};
    format.dwMask = CFM_FACE | CFM_CHARSET;
    apply({face, font_.points}, format);
}

void RichEdit::setPoints(float points) {
    CHARFORMATW format{};
    format.dwMask = CFM_SIZE;
    apply({font_.face, points}, format);
}

void RichEdit::apply(const Font& font, CHARFORMATW& format) {
    font_ = font;
    const bool changed = isChanged();
    format.cbSize = sizeof format;
    format.bCharSet = DEFAULT_CHARSET;
    format.yHeight = static_cast<LONG>(font.points * 20.0F);
    ::lstrcpynW(format.szFaceName, win::ToWide(font.face).c_str(), LF_FACESIZE);
    send(EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&format));
    send(EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
    setChanged(changed);
}

LRESULT RichEdit::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // The control's class is an ANSI one: by itself it hands its text out through the code page.
    if (message == WM_GETTEXT && wParam > 0) {
        const std::u16string whole = text();
        const std::size_t count = std::min(whole.size(), static_cast<std::size_t>(wParam) - 1);
        auto* buffer = reinterpret_cast<wchar_t*>(lParam);
        std::copy_n(whole.data(), count, buffer);
        buffer[count] = L'\0';
        return static_cast<LRESULT>(count);
    }
    if (message == WM_GETTEXTLENGTH) return textLength();
    return Control::onMessage(message, wParam, lParam);
}

}  // namespace document
