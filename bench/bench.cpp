#include "bench.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "win/error.h"
#include "win/unique.h"

namespace bench {
namespace {

double Now() {
    LARGE_INTEGER count{};
    LARGE_INTEGER frequency{};
    ::QueryPerformanceCounter(&count);
    ::QueryPerformanceFrequency(&frequency);
    return static_cast<double>(count.QuadPart) * 1000.0 / static_cast<double>(frequency.QuadPart);
}

double Time(const std::function<void()>& run) {
    const double start = Now();
    run();
    return Now() - start;
}

double Middle(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

double Median(int runs, const std::function<void()>& run) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) times.push_back(Time(run));
    return Middle(times);
}

void Compare(const std::string& what, double aim, int runs, const std::function<void()>& ours,
             const std::function<void()>& theirs, const std::function<void()>& prepare) {
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (int i = 0; i < runs; ++i) {
        if (prepare) prepare();
        ourTimes.push_back(Time(ours));
        if (prepare) prepare();
        theirTimes.push_back(Time(theirs));
    }
    Print(what, Middle(ourTimes), Middle(theirTimes), aim);
}

void Print(const std::string& what, double ours, double theirs, double aim) {
    const double ratio = ours / theirs;
    std::printf("%-62s %10.1f %10.1f  %6.2f  %5.2f  %s\n", what.c_str(), ours, theirs, ratio, aim,
                ratio <= aim ? "yes" : "NO");
    std::fflush(stdout);
}

std::string Page(std::size_t bytes) {
    std::string page = "<HTML>\r\n<BODY>\r\n";
    for (int line = 0; page.size() < bytes; ++line) {
        page += "<P>Line " + std::to_string(line) + ": <B>bread</B>, butter and some more words.</P>\r\n";
    }
    return page + "</BODY>\r\n</HTML>";
}

std::string Scratch(const std::string& name) {
    const char* folder = std::getenv("QUILLON_SCRATCH");
    return std::string(folder ? folder : "C:") + "\\" + name;
}

void WriteFile(const std::string& path, const std::string& bytes) {
    const win::UniqueFile file(
        ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    win::Check(::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
}

}  // namespace bench
