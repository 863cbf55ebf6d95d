// The encodings that a page can be in, and what the system knows of them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace document {

// Windows' numbers.
inline constexpr unsigned kUtf8 = 65001;
inline constexpr unsigned kUtf16 = 1200;
inline constexpr unsigned kUtf16BigEndian = 1201;

struct Encoding {
    unsigned codePage = 0;
    bool mark = false;  // a byte-order mark stands before the page

    friend bool operator==(const Encoding&, const Encoding&) = default;
};

// The system's code pages; not to be asked about UTF-8 and UTF-16. An empty text converts to an empty one.
class CodePages {
 public:
    constexpr CodePages() = default;
    CodePages(const CodePages&) = delete;
    CodePages& operator=(const CodePages&) = delete;

    // The system's ANSI code page; may be kUtf8.
    virtual unsigned ansi() const = 0;

    // Whether it is installed and stateless: a character has the same bytes wherever it stands.
    virtual bool has(unsigned codePage) const = 0;

    // How many bytes the character takes that starts here, by its lead bytes: 1, 2, or 4 in GB 18030; never
    // more than there are, and at least 1.
    virtual std::size_t characterLength(unsigned codePage, std::string_view bytes) const = 0;

    // As the system converts; what is no character may come out as anything.
    virtual std::u16string toUnicode(unsigned codePage, std::string_view bytes) const = 0;

    // Without best fit; what the code page lacks may come out as anything.
    virtual std::string fromUnicode(unsigned codePage, std::u16string_view text) const = 0;

 protected:
    ~CodePages() = default;
};

}  // namespace document
