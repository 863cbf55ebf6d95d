// What libstdc++ would bring along unasked, a quarter of the program's size, in the few lines that it needs
// here. Linked into the program only: its replacements would clash with a fuller runtime, as the tests have.
#include <cstdlib>
#include <exception>

#ifdef __GLIBCXX__

namespace {

struct LibraryFailure : std::exception {
    explicit LibraryFailure(const char* what) : what_(what) {}
    const char* what() const noexcept override { return what_; }
    const char* what_;
};

}  // namespace

// The library's own handler prints the name of an exception that nobody catches, by a demangler of 50 KB. No
// handler of ours lets an exception out, so ending is all that is left to do.
namespace __gnu_cxx {
void __verbose_terminate_handler() {
    std::abort();
}
}  // namespace __gnu_cxx

// What the containers and strings call for a bad length or position. The library throws its standard
// exceptions, which hold a string of a kind that is used nowhere else.
namespace std {
[[noreturn]] void __throw_length_error(const char* what) {
    throw LibraryFailure(what);
}
[[noreturn]] void __throw_logic_error(const char* what) {
    throw LibraryFailure(what);
}
[[noreturn]] void __throw_out_of_range(const char* what) {
    throw LibraryFailure(what);
}
[[noreturn]] void __throw_out_of_range_fmt(const char* what, ...) {
    throw LibraryFailure(what);
}
[[noreturn]] void __throw_bad_alloc() {
    throw LibraryFailure("There is not enough memory.");
}
[[noreturn]] void __throw_bad_array_new_length() {
    throw LibraryFailure("There is not enough memory.");
}
[[noreturn]] void __throw_bad_function_call() {
    throw LibraryFailure("An empty function was called.");
}
[[noreturn]] void __throw_bad_cast() {
    throw LibraryFailure("A value is of another kind.");
}
}  // namespace std

#endif
