// The chart of the 216 web-safe colours.
#pragma once

#include <array>

#include "authoring/colours/core/web_colors.h"
#include "authoring/colours/swatch.h"
#include "main_window.h"
#include "win/dialog.h"

class frmColors : public win::Dialog {
 public:
    // Shows the chart at the top right of the screen. One that is open already goes back there.
    static void open(MainWindow& main);

 private:
    static constexpr char kTemplate[] = "frmColors";

    explicit frmColors(MainWindow& main) : Dialog(kTemplate), main_(main) {}

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void layOut() const;
    void paint() const;
    void pick(int index);
    void insert(int index) const;
    void unload();
    void leave();

    MainWindow& main_;
    std::array<authoring::Swatch, authoring::kSwatchCount> Text1_;
    bool closing_ = false;
};

namespace authoring {

void OnColor(MainWindow& main, int);

}  // namespace authoring
