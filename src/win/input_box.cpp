#include "win/input_box.h"

#include "forms/InputBox.h"
#include "win/dialog.h"
#include "win/window.h"

namespace win {
namespace {

class InputBox : public Dialog {
 public:
    InputBox(const std::string& prompt, const std::string& title, Reply reply)
        : Dialog("InputBox"), prompt_(prompt), title_(title), kind_(reply) {}

    const std::string& reply() const { return reply_; }

 private:
    bool onInit() override {
        ShowText(hwnd(), title_);
        setItemText(lblPrompt, prompt_);
        if (kind_ == Reply::masked) ::SendMessageW(item(txtReply), EM_SETPASSWORDCHAR, '*', 0);
        focusItem(txtReply);
        return false;
    }

    bool onCommand(WORD id, WORD) override {
        if (id != IDOK) return false;
        reply_ = itemText(txtReply);
        close(IDOK);
        return true;
    }

    std::string prompt_;
    std::string title_;
    std::string reply_;
    Reply kind_;
};

}  // namespace

std::string AskText(HWND owner, const std::string& prompt, const std::string& title, Reply reply) {
    InputBox box(prompt, title, reply);
    box.showModal(owner ? ::GetAncestor(owner, GA_ROOT) : nullptr);
    return box.reply();
}

}  // namespace win
