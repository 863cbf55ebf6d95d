#include "document/mTxtBoxAPI.h"

namespace mTxtBoxAPI {

long LineCount(HWND edit) {
    return static_cast<long>(::SendMessageW(edit, EM_GETLINECOUNT, 0, 0));
}

long LineStart(HWND edit, long line) {
    return static_cast<long>(::SendMessageW(edit, EM_LINEINDEX, static_cast<WPARAM>(line), 0));
}

long LineLength(HWND edit, long line) {
    return static_cast<long>(
        ::SendMessageW(edit, EM_LINELENGTH, static_cast<WPARAM>(LineStart(edit, line)), 0));
}

}  // namespace mTxtBoxAPI
