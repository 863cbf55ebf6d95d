// How passwords are kept in the settings. This hides them from a glance only: the key is the same in
// every copy of the program, so whoever can read the settings can read the passwords.
#pragma once

#include <string>
#include <string_view>

namespace ftp {

// Bytes in, as many bytes out, any of which may be 0. Applied twice it gives the text back.
std::string ScramblePassword(std::string_view text);

// Overwrites the bytes of a secret before letting them go, in a way that no optimiser drops.
void Wipe(std::string& secret);

}  // namespace ftp
