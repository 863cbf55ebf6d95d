// Windows as a person finds them: by what can be read on them. Texts are UTF-8.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <windows.h>

namespace seen {

// The text of a window of any process. Long texts come whole.
std::string TextOf(HWND window);
void PutText(HWND window, const std::string& text);
std::string ClassOf(HWND window);
RECT PlaceOf(HWND window);  // on the screen

// Visible top-level windows of a process.
std::vector<HWND> TopLevel(DWORD process);
// All windows below `parent`, at any depth.
std::vector<HWND> Below(HWND parent);

// The visible top-level window of the process with this title; null when there is none.
HWND Titled(DWORD process, const std::string& title);
// The same, of dialogs and message boxes only: the main window's title is that of many boxes too.
HWND Dialog(DWORD process, const std::string& title);
// The visible window below `parent` with this text, and of this class unless that is empty.
HWND Child(HWND parent, const std::string& text, const std::string& cls = "");
HWND ChildOfClass(HWND parent, const std::string& cls);

// What a dialog says: the texts of the labels that are in sight, in order, without the empty ones.
std::string LabelsOf(HWND dialog);

// How many things of the system's a process holds.
struct Holdings {
    int windows = 0;
    int gdi = 0;           // pens, fonts, bitmaps, ...
    SIZE_T kilobytes = 0;  // of memory of its own
};
Holdings HeldBy(DWORD process);

// Polls until the condition holds; false when it has not come true within ten seconds.
bool Until(const std::function<bool()>& condition, DWORD milliseconds = 10000);

// Puts texts into the first two edit fields of a dialog, then has one of its buttons pressed.
void FillIn(HWND dialog, const std::string& first, const std::string& second, const std::string& button);

// The box of a file dialog of the system for the name of the file.
HWND FileNameBox(HWND dialog);
// Puts a path into a file dialog of the system and presses its default button.
void ChooseFile(HWND dialog, const std::string& path);

}  // namespace seen
