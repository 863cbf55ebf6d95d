// The strip below the documents with its two labels.
#pragma once

#include "win/unique.h"
#include "win/window.h"

namespace shell {

class StatusStrip : public win::Window {
 public:
    static StatusStrip& open(HWND parent);

    int height() const;  // pixels: the least that its font takes
    void setResults(const std::string& text) const;
    void setLineNo(const std::string& text) const;

 private:
    StatusStrip() = default;
    ~StatusStrip() override = default;

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    HWND makeLabel(const wchar_t* text, DWORD style) const;
    void useFont();
    void layOut() const;

    win::UniqueFont font_;
    int lineHeight_ = 0;
    HWND lblResults_ = nullptr;
    HWND lblLineNo_ = nullptr;
};

}  // namespace shell
