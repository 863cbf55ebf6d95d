// The system's headers, in the one order that works, without the macros that take our names.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
#include <ole2.h>
#include <richedit.h>
#include <shellapi.h>
