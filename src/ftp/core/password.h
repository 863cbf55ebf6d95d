// How passwords are kept in the settings. This hides them from a glance only: the key is the same in
// every copy of the program, so whoever can read the settings can read the passwords.
#pragma once

#include <string>
#include <string_view>

#include "document/core/code_pages.h"

namespace ftp {

// Bytes in, as many bytes out, any of which may be 0. Applied twice it gives the bytes back.
std::string ScramblePassword(std::string_view bytes);

// The text to store for the bytes of a password: the scrambled bytes as if they were of the ANSI code page,
// which is how the program has always stored them, and back. Whatever the bytes, they come back.
std::string StoredPassword(std::string_view bytes, const document::CodePages& pages);
std::string ReadPassword(std::string_view stored, const document::CodePages& pages);

// Overwrites the bytes of a secret before letting them go, in a way that no optimiser drops.
void Wipe(std::string& secret);

}  // namespace ftp
