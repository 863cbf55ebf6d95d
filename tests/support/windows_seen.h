// Windows as a person finds them: by what can be read on them. Texts are UTF-8.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <windows.h>

namespace seen {

// The whole text of a window of any process.
std::string TextOf(HWND window);
void PutText(HWND window, const std::string& text);
std::string ClassOf(HWND window);
RECT PlaceOf(HWND window);  // on the screen
COLORREF ColorAt(HWND window, int x, int y);

// Visible top-level windows of a process.
std::vector<HWND> TopLevel(DWORD process);
// All windows below `parent`, at any depth.
std::vector<HWND> Below(HWND parent);

// The visible top-level window of the process with this title; null when there is none.
HWND Titled(DWORD process, const std::string& title);
// The same among dialogs and message boxes only: the main window has the same title as many of them.
HWND Dialog(DWORD process, const std::string& title);
// The visible window below `parent` with this text, and of this class unless that is empty.
HWND Child(HWND parent, const std::string& text, const std::string& cls = "");
HWND ChildOfClass(HWND parent, const std::string& cls);

// What a dialog says: the texts of its visible labels, in order, without the empty ones.
std::string LabelsOf(HWND dialog);

// The system resources that a process holds.
struct Holdings {
    int windows = 0;
    int gdi = 0;           // pens, fonts, bitmaps, ...
    SIZE_T kilobytes = 0;  // of private memory
};
Holdings HeldBy(DWORD process);

// Polls until the condition holds; false when it does not within the time.
bool Until(const std::function<bool()>& condition, DWORD milliseconds = 10000);

// Puts texts into the first two edit fields of a dialog, then presses one of its buttons.
void FillIn(HWND dialog, const std::string& first, const std::string& second, const std::string& button);

// The field for the file name in a file dialog of the system.
HWND FileNameBox(HWND dialog);
// Puts a path into a file dialog of the system and presses its default button.
void ChooseFile(HWND dialog, const std::string& path);

}  // namespace seen
