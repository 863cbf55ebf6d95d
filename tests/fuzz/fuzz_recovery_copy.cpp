// A recovery copy from a damaged disk. An input is a file, and also the contents of a page that is packed.
// Kept inputs have a valid checksum where they need one, since no fuzzer guesses it.
#include "check.h"
#include "files/core/recovery_copy.h"

namespace {

void CheckCopy(std::string_view bytes) {
    const auto copy = files::Unpack(bytes);
    if (!copy) return;
    Check(copy->caret <= copy->text.size());
    const std::string packed = files::Pack(*copy);
    Check(packed.size() == bytes.size() && files::Unpack(packed) == copy);
}

}  // namespace

void Try(std::string_view input) {
    CheckCopy(input);

    const std::size_t size = input.size();
    files::RecoveryCopy copy;
    copy.path = TakeLine(input);
    copy.caption = TakeLine(input);
    copy.text = Units(input);
    copy.caret = copy.text.size() / 2;
    copy.encoding = {static_cast<unsigned>(size), size % 2 == 0};
    const std::string packed = files::Pack(copy);
    Check(files::Unpack(packed) == copy);
    // Cut short, or with one byte changed, it is no copy.
    Check(!files::Unpack(packed.substr(0, size % packed.size())));
    std::string damaged = packed;
    damaged[size * 7 % packed.size()] ^= 0x10;
    Check(!files::Unpack(damaged));
}
