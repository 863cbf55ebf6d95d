#include "authoring/tags/core/tag_fragments.h"

#include <cstddef>
#include <iterator>

namespace authoring {
namespace {

constexpr std::string_view kSeparator;
constexpr std::string_view kAskedFor;

constexpr std::string_view kBasic[] = {
    "<HTML>\r\n\r\n</HTML>",
    "<HEAD>\r\n\r\n</HEAD>",
    "<TITLE> </TITLE>",
    "<BODY>\r\n\r\n</BODY>",
};
constexpr std::string_view kBodyInc[] = {
    " background=", " bgColor=", " text=", " link=blue alink=red vlink=purple", " onload=\"\"",
};
constexpr std::string_view kMod[] = {
    "<b></b>", "<i></i>", "<strong></strong>", "<u></u>", "<pre></pre>", "<!--    -->",
};
constexpr std::string_view kFont[] = {
    "<FONT></FONT>",
    kAskedFor,
    "<FONT color=></FONT>",
    "<FONT face=\"\"></FONT>",
    "<FONT size= color= face=\"\"></FONT>",
};
constexpr std::string_view kImg[] = {"<IMG SRC=\"\" NAME=\"\" width=X height=Y border=0 alt=\"\">"};
constexpr std::string_view kHref[] = {"<A HREF=\"\"></A>"};
constexpr std::string_view kRule[] = {
    "<HR>", "<HR size=>", "<HR width=X>", "<HR color=>", "<HR align=>", "<HR size= width= color= align=>",
};
constexpr std::string_view kAlign[] = {
    "<center></center>",
    "<blockquote></blockquote>",
    "<DIV ID=\"\"></DIV>",
    "<span ID=\"\"></span>",
};
constexpr std::string_view kTable[] = {
    "<TABLE><TR><TD>\r\n\r\n</TD></TR>\r\n</TABLE>",
    "<TABLE border=0 cellpadding=0 cellspacing=0 width=100%>\r\n"
    "  <TR>\r\n"
    "    <TD></TD>\r\n"
    "  </TR>\r\n"
    "</TABLE>",
};
constexpr std::string_view kFSet[] = {
    "<FRAMESET>\r\n</FRAMESET>",
    "<FRAMESET COLS=\"100,*\" FRAMEBORDER=0 FRAMESPACING=0 BORDER=0>\r\n"
    "    <FRAME SRC=\"\" NAME=\"\">\r\n"
    "    <FRAME SRC=\"\" NAME=\"\">\r\n"
    "</FRAMESET>",
    kSeparator,
    "<NOFRAMES></NOFRAMES>",
};
constexpr std::string_view kFrame[] = {
    "<FRAME SRC=\"\" NAME=\"\">\r\n</FRAME>",
    " MARGINWIDTH=\"\"  MARGINHEIGHT=\"\"",
    " SCROLLING=\"NO\"",
    " NORESIZE",
};
constexpr std::string_view kForm[] = {
    "<FORM NAME=\"\" METHOD=\"GET\" ACTION=\"\">\r\n\r\n</FORM>",
    "<FORM NAME=\"\" METHOD=\"POST\" ACTION=\"\">\r\n\r\n</FORM>",
    kSeparator,
    "<TEXTAREA NAME=\"\" COLS=\"40\" ROWS=\"6\" WRAP=\"VIRTUAL\">\r\n</TEXTAREA>",
    kSeparator,
    "<SELECT NAME=\"\">\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "</SELECT>",
    "<SELECT MULTIPLE NAME=\"\" SIZE=\"3\">\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "<OPTION VALUE=\"###\">###\r\n"
    "</SELECT>",
};
constexpr std::string_view kInput[] = {
    "<INPUT TYPE=\"TEXT\" NAME=\"\" SIZE=\"24\" MAXLENGTH=\"80\">",
    "<INPUT TYPE=\"HIDDEN\" NAME=\"\" VALUE=\"\">",
    "<INPUT TYPE=\"RADIO\" NAME=\"\" VALUE=\"\">",
    "<INPUT TYPE=\"CHECKBOX\" NAME=\"\" VALUE=\"YES\">",
    "<INPUT TYPE=\"PASSWORD\" NAME=\"\" SIZE=\"24\" MAXLENGTH=\"80\">",
    "<INPUT TYPE=\"FILE\" NAME=\"\" ACCEPT=\"filetype/*\" SIZE=\"24\" MAXLENGTH=\"120\">",
    "<INPUT TYPE=\"RESET\" VALUE=\"Clear Form\">",
    "<INPUT TYPE=\"SUBMIT\" VALUE=\"Submit\">",
};
constexpr std::string_view kLs[] = {
    "<UL type=disc>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</UL>",
    "<UL type=circle>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</UL>",
    "<UL type=square>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</UL>",
};
constexpr std::string_view kOl[] = {
    "<OL>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</OL>",
    "<OL type=A>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</OL>",
    "<OL type=a>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</OL>",
    "<OL type=I>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</OL>",
    "<OL type=i>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</OL>",
};
constexpr std::string_view kDLs[] = {
    "<DL>  <!-- List an item after <DT>, subitem after <DD> -->\r\n"
    "    <DT>\r\n"
    "        <DD>\r\n"
    "</DL>",
};
constexpr std::string_view kSpecial[] = {
    "&quot;", "&nbsp;", "&lt;", "&gt;", "&amp;", "&copy;", "&reg;",
};

struct Fragments {
    const std::string_view* first;
    std::size_t count;
};

template <std::size_t n>
constexpr Fragments All(const std::string_view (&fragments)[n]) {
    return {fragments, n};
}

constexpr Fragments kMenus[] = {
    All(kBasic), All(kBodyInc), All(kMod),   All(kFont), All(kImg),     All(kHref),
    All(kRule),  All(kAlign),   All(kTable), All(kFSet), All(kFrame),   All(kForm),
    All(kInput), All(kLs),      All(kOl),    All(kDLs),  All(kSpecial),
};
static_assert(std::size(kMenus) == static_cast<std::size_t>(TagMenu::Special) + 1);

}  // namespace

std::string_view TagFragment(TagMenu menu, int index) {
    const Fragments& fragments = kMenus[static_cast<std::size_t>(menu)];
    if (index < 0 || static_cast<std::size_t>(index) >= fragments.count) return {};
    return fragments.first[index];
}

bool IsFontSizeReply(std::string_view reply) {
    return !reply.empty() && reply.front() >= '1' && reply.front() <= '7';
}

std::string FontSizeFragment(std::string_view reply) {
    std::string fragment = "<FONT size=";
    fragment += reply;
    fragment += "></FONT>";
    return fragment;
}

std::string DateFragment(std::string_view monthName, int day, int year) {
    const auto padded = [](int number, std::size_t digits) {
        std::string text = std::to_string(number);
        if (text.size() < digits) text.insert(0, digits - text.size(), '0');
        return text;
    };
    std::string date(monthName);
    date += ' ';
    date += padded(day, 2);
    date += ", ";
    date += padded(year, 4);
    return date;
}

}  // namespace authoring
