// libstdc++'s own handler for an exception that nobody catches prints its name, and for that links in a
// demangler of 50 KB. No handler of ours lets an exception out, so ending is all that is left to do.
#include <cstdlib>
#include <exception>

#ifdef __GLIBCXX__
namespace __gnu_cxx {
void __verbose_terminate_handler() {
    std::abort();
}
}  // namespace __gnu_cxx
#endif
