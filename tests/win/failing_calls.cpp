#include "win/failing_calls.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>

#include <gtest/gtest.h>

#include "support/wide.h"
#include "win/windows.h"

namespace {

struct State {
    static inline State* now = nullptr;

    const FaultyWork& test;
    DWORD thread = ::GetCurrentThreadId();
    int left = 0;  // calls until the one that fails
    DWORD error = 0;
    bool forGood = false;
    std::string failed = {};
    std::vector<std::string> said = {};
};

bool Fails(const char* name, Calls kind = Calls::changing) {
    State* state = State::now;
    if (!state) return false;
    const bool isHere = ::GetCurrentThreadId() == state->thread;
    const bool counts =
        state->test.which == Calls::any ? kind != Calls::memory : isHere && kind == state->test.which;
    if (!counts) return false;
    --state->left;
    if (state->left > 0 || (state->left < 0 && !state->forGood)) return false;
    if (state->left == 0) state->failed = name;
    ::SetLastError(state->error);
    return true;
}

// Where this program's import table keeps the address of a system function.
void** ImportSlot(const char* name) {
    auto* base = reinterpret_cast<BYTE*>(::GetModuleHandleA(nullptr));
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD table = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    const auto* dll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + table);
    for (; dll->Name != 0; ++dll) {
        const auto* wanted = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + dll->OriginalFirstThunk);
        auto* slot = reinterpret_cast<void**>(base + dll->FirstThunk);
        for (; wanted->u1.AddressOfData != 0; ++wanted, ++slot) {
            if (IMAGE_SNAP_BY_ORDINAL(wanted->u1.Ordinal)) continue;
            const auto* import =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + wanted->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) return slot;
        }
    }
    return nullptr;
}

template <typename Result>
Result Refusal() {
    // Functions of the registry return the error itself.
    if constexpr (std::is_same_v<Result, LONG>) return static_cast<LONG>(State::now->error);
    return Result{};
}

template <std::size_t kSize>
struct Name {
    consteval Name(const char (&name)[kSize]) { std::copy_n(name, kSize, text); }
    char text[kSize] = {};
};

template <Name kName, typename Function, Calls kKind = Calls::changing>
struct Hook;
template <Name kName, typename Result, typename... Args, Calls kKind>
struct Hook<kName, Result(WINAPI*)(Args...), kKind> {
    static inline Result(WINAPI* real)(Args...) = nullptr;

    static Result WINAPI call(Args... args) {
        return Fails(kName.text, kKind) ? Refusal<Result>() : real(args...);
    }
    static void put(Result(WINAPI* function)(Args...) = call) {
        void** slot = ImportSlot(kName.text);
        if (!real) std::memcpy(&real, slot, sizeof real);
        std::memcpy(slot, &function, sizeof function);
    }
    static void restore() { put(real); }
};

#define HOOK(function) Hook<#function, decltype(&::function)>
#define READ_HOOK(function) Hook<#function, decltype(&::function), Calls::any>
using Create = HOOK(CreateFileW);
using Copy = HOOK(CopyFileW);
using Write = HOOK(WriteFile);
using Close = HOOK(CloseHandle);
using Box = HOOK(MessageBoxW);
using MemoryStatus = HOOK(GlobalMemoryStatusEx);
using Find = READ_HOOK(FindFirstFileW);

template <typename... Hooks>
struct All {
    static void put() { (Hooks::put(), ...); }
    static void restore() { (Hooks::restore(), ...); }
};
using Plain = All<HOOK(RegCreateKeyExW), HOOK(RegSetValueExW), HOOK(RegDeleteValueW), HOOK(RegDeleteKeyW),
                  HOOK(SetEndOfFile), HOOK(FlushFileBuffers), HOOK(MoveFileExW), HOOK(DeleteFileW),
                  HOOK(SetFileAttributesW), HOOK(SetFileSecurityW), HOOK(CreateDirectoryW),
                  READ_HOOK(CreateEventW), READ_HOOK(QueueUserWorkItem), READ_HOOK(ReadFile),
                  READ_HOOK(GetFileSizeEx), READ_HOOK(FindNextFileW)>;
#undef READ_HOOK
#undef HOOK

bool RefusesNewFile() {
    if (!State::now || !State::now->test.newFilesRefused) return false;
    ::SetLastError(ERROR_ACCESS_DENIED);
    return true;
}

HANDLE WINAPI CreateOrRefuse(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                             DWORD disposition, DWORD flags, HANDLE like) {
    if (disposition == CREATE_NEW && RefusesNewFile()) return INVALID_HANDLE_VALUE;
    if (Fails("CreateFileW", (access & GENERIC_WRITE) != 0 ? Calls::changing : Calls::any))
        return INVALID_HANDLE_VALUE;
    return Create::real(path, access, share, security, disposition, flags, like);
}

BOOL WINAPI CopyOrRefuse(LPCWSTR from, LPCWSTR to, BOOL asNew) {
    return !RefusesNewFile() && !Fails("CopyFileW") && Copy::real(from, to, asNew);
}

HANDLE WINAPI FindOrRefuse(LPCWSTR pattern, LPWIN32_FIND_DATAW found) {
    return Fails("FindFirstFileW", Calls::any) ? INVALID_HANDLE_VALUE : Find::real(pattern, found);
}

BOOL WINAPI WriteOrHalf(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written, LPOVERLAPPED where) {
    if (!Fails("WriteFile")) return Write::real(file, bytes, size, written, where);
    Write::real(file, bytes, size / 2, written, where);
    ::SetLastError(State::now->error);
    return FALSE;
}

BOOL WINAPI CloseAnyway(HANDLE handle) {
    const BOOL closed = Close::real(handle);
    return Fails("CloseHandle") ? FALSE : closed;
}

int WINAPI Answer(HWND owner, LPCWSTR text, LPCWSTR title, UINT style) {
    State* state = State::now;
    if (!state || ::GetCurrentThreadId() != state->thread) return Box::real(owner, text, title, style);
    State::now = nullptr;
    state->said.push_back(Narrow(text));
    State::now = state;
    return (style & MB_YESNO) == MB_YESNO ? state->test.answer : IDOK;
}

BOOL WINAPI HardlyAny(MEMORYSTATUSEX* memory) {
    memory->ullAvailVirtual = 300 << 20;
    return TRUE;
}

class Hooked {
 public:
    explicit Hooked(State& state) {
        Plain::put();
        Create::put(CreateOrRefuse);
        Copy::put(CopyOrRefuse);
        Write::put(WriteOrHalf);
        Close::put(CloseAnyway);
        Box::put(Answer);
        Find::put(FindOrRefuse);
        State::now = &state;
    }
    ~Hooked() {
        State::now = nullptr;
        Plain::restore();
        All<Create, Copy, Write, Close, Box, Find>::restore();
    }
};

// Whether there was a call to fail.
bool FailOne(const FaultyWork& test, int call, bool forGood, DWORD error) {
    State now{test};
    now.left = call;
    now.error = error;
    now.forGood = forGood;
    test.prepare();
    {
        const Hooked hooked(now);
        test.work();
    }
    test.check({"call " + std::to_string(call) + (forGood ? " and all after it" : "") + ", error " +
                    std::to_string(error) + " " + now.failed,
                now.said, !now.failed.empty()});
    return !now.failed.empty();
}

}  // namespace

void* operator new(std::size_t size) {
    constexpr std::size_t kMuch = 1000;
    void* memory = size > kMuch && Fails("operator new", Calls::memory)
                       ? nullptr
                       : std::malloc(std::max<std::size_t>(size, 1));
    if (!memory) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

void FailEachCall(const FaultyWork& test) {
    int faults = 0;
    for (const DWORD error : test.errors) {
        for (const bool forGood : {false, true}) {
            if (forGood && test.which == Calls::memory) continue;
            for (int call = 1; call < 500 && FailOne(test, call, forGood, error); ++call) ++faults;
        }
    }
    std::printf("%s: %d faults\n", test.name.c_str(), faults);
    EXPECT_GE(faults, test.fewestFaults) << test.name;
}

std::vector<std::string> SaidWhileMemoryIsShort(const std::function<void()>& work) {
    MemoryStatus::put(HardlyAny);
    const auto said = SaidBy(work);
    MemoryStatus::restore();
    return said;
}

std::vector<std::string> SaidBy(const std::function<void()>& work) {
    const FaultyWork none{};
    State now{none};
    const Hooked hooked(now);
    work();
    return now.said;
}
