#include "document/rich_edit.h"

#include <algorithm>
#include <cstring>

#include "win/error.h"
#include "win/late.h"

namespace document {
namespace {

struct Source {
    std::string_view rest;
};

// A chunk that ended between CR and LF would give an extra line.
DWORD CALLBACK Feed(DWORD_PTR cookie, LPBYTE buffer, LONG size, LONG* done) {
    auto& rest = reinterpret_cast<Source*>(cookie)->rest;
    std::size_t count = std::min(rest.size(), static_cast<std::size_t>(size));
    if (count > 1 && count < rest.size() && rest[count - 1] == '\r') --count;
    std::memcpy(buffer, rest.data(), count);
    rest.remove_prefix(count);
    *done = static_cast<LONG>(count);
    return 0;
}

DWORD CALLBACK Collect(DWORD_PTR cookie, LPBYTE buffer, LONG size, LONG* done) {
    reinterpret_cast<std::string*>(cookie)->append(reinterpret_cast<const char*>(buffer),
                                                   static_cast<std::size_t>(size));
    *done = size;
    return 0;
}

std::string StreamOut(HWND control, WPARAM format, std::size_t expected) {
    std::string text;
    text.reserve(expected);
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&text), 0, Collect};
    ::SendMessageA(control, EM_STREAMOUT, format, reinterpret_cast<LPARAM>(&stream));
    return text;
}

constexpr LONG kTextLimit = 0x7FFFFFFE;

}  // namespace

void RichEdit::create(HWND parent, int id, const Font& font) {
    // The class registers itself when its library is loaded, which stays so for the process.
    win::LoadSystemDll("riched32.dll");
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | WS_TABSTOP | ES_MULTILINE |
                        ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_NOHIDESEL | ES_DISABLENOSCROLL;
    attach(win::Check(::CreateWindowExA(WS_EX_CLIENTEDGE, "RICHEDIT", "", style, 0, 0, 0, 0, parent,
                                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                        ::GetModuleHandleA(nullptr), nullptr)));
    // In this mode a font is no formatting of the text that Undo would take back.
    send(EM_SETTEXTMODE, TM_PLAINTEXT);
    send(EM_EXLIMITTEXT, 0, kTextLimit);
    setWordWrap(false);
    setFont(font);
    send(EM_SETEVENTMASK, 0, ENM_CHANGE | ENM_SELCHANGE);
}

void RichEdit::load(std::string_view bytes) {
    const LRESULT events = send(EM_SETEVENTMASK, 0, ENM_NONE);
    // The control takes EF BB BF at the start of a stream for a mark, drops it and decodes what follows. With
    // its first byte put back afterwards it is text like any other.
    const bool looksMarked = bytes.starts_with("\xEF\xBB\xBF");
    Source source{bytes.substr(looksMarked ? 1 : 0)};
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&source), 0, Feed};
    send(EM_STREAMIN, SF_TEXT, reinterpret_cast<LPARAM>(&stream));
    if (looksMarked) {
        select(0, 0);
        send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("\xEF"));
    }
    select(0, 0);
    send(EM_EMPTYUNDOBUFFER);
    setChanged(false);
    send(EM_SETEVENTMASK, 0, events);
    if (stream.dwError != 0 || !source.rest.empty()) throw win::Error(ERROR_OUTOFMEMORY);
}

std::string RichEdit::text() const {
    return StreamOut(hwnd(), SF_TEXT, static_cast<std::size_t>(textLength()));
}

Selection RichEdit::selection() const {
    CHARRANGE range{};
    send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    // With all selected the end lies beyond the text.
    const long length = textLength();
    return {std::min<long>(range.cpMin, length), std::min<long>(range.cpMax, length)};
}

void RichEdit::select(long start, long end) {
    CHARRANGE range{start, end};
    send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

std::string RichEdit::selectedText() const {
    const long length = selection().length();
    if (length == 0) return {};
    std::string text = StreamOut(hwnd(), SF_TEXT | SFF_SELECTION, static_cast<std::size_t>(length));
    text.resize(std::min(text.size(), static_cast<std::size_t>(length)));
    return text;
}

void RichEdit::replaceSelection(const std::string& text) {
    send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

std::string RichEdit::textRange(long start, long end) const {
    std::string text(static_cast<std::size_t>(std::max(0L, end - start)) + 1, '\0');
    TEXTRANGEA range{{start, end}, text.data()};
    text.resize(static_cast<std::size_t>(send(EM_GETTEXTRANGE, 0, reinterpret_cast<LPARAM>(&range))));
    return text;
}

void RichEdit::setWordWrap(bool wrap) {
    wordWrap_ = wrap;
    send(EM_SETTARGETDEVICE, 0, wrap ? 0 : 1);
}

void RichEdit::setFont(const Font& font) {
    font_ = font;
    const bool changed = isChanged();
    CHARFORMATA format{};
    format.cbSize = sizeof format;
    // Naming the effects in the mask only takes them away: the system's own font may be bold.
    format.dwMask = CFM_FACE | CFM_SIZE | CFM_CHARSET | CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE;
    format.bCharSet = DEFAULT_CHARSET;
    format.yHeight = static_cast<LONG>(font.points * 20.0F);
    ::lstrcpynA(format.szFaceName, font.face.c_str(), LF_FACESIZE);
    send(EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&format));
    send(EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
    setChanged(changed);
}

}  // namespace document
