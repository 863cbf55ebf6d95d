// The strip below the documents with its two labels.
#pragma once

#include "win/unique.h"
#include "win/window.h"

namespace shell {

class StatusStrip : public win::Window {
 public:
    static StatusStrip& open(HWND parent);

    static int height();  // pixels
    void setResults(const std::string& text) const { ::SetWindowTextA(lblResults_, text.c_str()); }
    void setLineNo(const std::string& text) const { ::SetWindowTextA(lblLineNo_, text.c_str()); }

 private:
    StatusStrip() = default;
    ~StatusStrip() override = default;

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    HWND makeLabel(const char* text, DWORD style) const;
    void layOut() const;

    win::UniqueFont font_;
    HWND lblResults_ = nullptr;
    HWND lblLineNo_ = nullptr;
};

}  // namespace shell
