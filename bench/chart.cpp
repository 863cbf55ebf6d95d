// Opening the colour chart until it is painted, beside a time that a user does not notice.
#include "authoring/colours/frmColors.h"
#include "bench.h"
#include "win/message_loop.h"

namespace bench {

void Chart(MainWindow& main) {
    const auto close = [&main] {
        const win::Dialog* chart = win::Dialog::find(main.mainHwnd(), "frmColors");
        if (chart) ::SendMessageA(chart->hwnd(), WM_COMMAND, IDCANCEL, 0);
        win::RunPending();
    };
    Compare(
        "opening the colour chart, beside 0.3 s", 1.0, 7,
        [&main] {
            frmColors::open(main);
            win::RunPending();
        },
        [] { ::Sleep(300); }, close);
    close();
}

}  // namespace bench
