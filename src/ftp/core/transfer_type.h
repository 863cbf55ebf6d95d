// How a file is sent: as it is, or as text.
#pragma once

#include <string_view>

namespace ftp {

// The option array upType in its order: "Binary", "Ascii", "Auto".
enum class TransferMode { binary = 0, ascii = 1, automatic = 2 };

// The values of WinINet's FTP_TRANSFER_TYPE_ASCII and FTP_TRANSFER_TYPE_BINARY.
enum class TransferType : unsigned long { ascii = 1, binary = 2 };

// Ascii and Auto behave alike on purpose: a picture sent as text would be spoilt, so the name decides.
TransferType ChooseTransferType(TransferMode mode, std::string_view fileName);

}  // namespace ftp
