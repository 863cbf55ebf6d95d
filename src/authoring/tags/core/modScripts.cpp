#include "authoring/tags/core/modScripts.h"

#include <cstddef>
#include <iterator>

#include "authoring/find/core/find_replace.h"

namespace modScripts {
namespace {

constexpr std::string_view kScriptBlocks[] = {
    "<SCRIPT LANGUAGE=\"JavaScript\">\r\n<!--//\r\n\r\n//-->\r\n</SCRIPT>",
    "<SCRIPT LANGUAGE=\"VBScript\">\r\n<!--\r\n\r\n-->\r\n</SCRIPT>",
    "<STYLE TYPE=\"text/css\">\r\n<!--//\r\n\r\n//-->\r\n</STYLE>",
};

struct DropMenu {
    std::string_view keyword;
    std::string_view text;  // with kSampleMark for every address
};

constexpr std::string_view kSampleMark = "SAMPLE-URL";

constexpr DropMenu kDropMenus[] = {
    {"drop",
     "<FORM><SELECT NAME=\"\" onChange=\"if (this.options[this.selectedIndex].value.length != 0) "
     "{window.location=this.options[this.selectedIndex].value;}\">\r\n"
     "<OPTION SELECTED VALUE=\"\">Heading (no link) here\r\n"
     "<OPTION VALUE=\"SAMPLE-URL\">KestrelSites 1\r\n"
     "<OPTION VALUE=\"SAMPLE-URL\">KestrelSites 2\r\n"
     "<OPTION VALUE=\"SAMPLE-URL\">KestrelSites 3\r\n"
     "</SELECT></FORM>"},

    {"goBtn",
     "<FORM>\r\n"
     "<SELECT>\r\n"
     "<OPTION SELECTED  VALUE=\"\">Heading (no link) here\r\n"
     "<OPTION VALUE=\"SAMPLE-URL\">KestrelSites 1\r\n"
     "<OPTION VALUE=\"SAMPLE-URL\">KestrelSites 2\r\n"
     "<OPTION VALUE=\"SAMPLE-URL\">KestrelSites 3\r\n"
     "</SELECT>\r\n"
     "<input TYPE=\"button\" VALUE=\"Go!\" "
     "onClick=\"if (this.form.elements[0].options[this.form.elements[0].selectedIndex].value.length != 0) "
     "{window.location=this.form.elements[0].options[this.form.elements[0].selectedIndex].value}\">\r\n"
     "</form>"},

    {"Wnd",
     "<form>\r\n"
     "<select  name=\"sel1\" size=1>\r\n"
     "   <option value=\"SAMPLE-URL\">Kestrel Sites Link 1\r\n"
     "    <option value=\"SAMPLE-URL\">Kestrel Sites Link 2\r\n"
     "    <option value=\"SAMPLE-URL\">Kestrel Sites Link 3\r\n"
     "</select>&nbsp;<input type=\"button\" value=\"Go!\" onClick=\"sendThis(this.form)\"><br>\r\n"
     "<input type=\"checkbox\" name=\"optWnd\" value=\"ON\">Open in a new window</p></form>\r\n"
     "<script language=\"javascript\">\r\n"
     "<!--//\r\n"
     "function sendThis(xx){\r\n"
     "if (xx.optWnd.checked && !window.newWnd){\r\n"
     "  newWnd=window.open(\"\")\r\n"
     " newWnd.location=xx.sel1.options[xx.sel1.selectedIndex].value \r\n"
     " } else { \r\n"
     "  location=xx.sel1.options[xx.sel1.selectedIndex].value\r\n"
     " }\r\n"
     "}\r\n"
     "//-->\r\n"
     "</script>"},

    {"dCbo",
     "<form name=\"frmCbo\">\r\n"
     "<select name=\"cbo1\" size=\"1\" onChange=\"redirect(this.options.selectedIndex)\">\r\n"
     "<option>Group A\r\n"
     "<option>Group B\r\n"
     "<option>Group C\r\n"
     "</select>\r\n"
     "<select name=\"cbo2\" size=\"1\">\r\n"
     "<option value=\"SAMPLE-URL\">Kestrel Sites_1a\r\n"
     "<option value=\"SAMPLE-URL\">Kestrel Sites_1b\r\n"
     "<option value=\"SAMPLE-URL\">Kestrel Sites_1c\r\n"
     "</select>\r\n"
     "<input type=\"button\" name=\"test\" value=\"Go!\" onClick=\"go()\">\r\n"
     "\r\n"
     "<script>\r\n"
     "<!--//\r\n"
     "var groups=document.frmCbo.cbo1.options.length\r\n"
     "var group=new Array(groups)\r\n"
     "for (i=0; i<groups; i++)\r\n"
     "group[i]=new Array()\r\n"
     "group[0][0]=new Option(\"Kestrel Sites_1a\",\"SAMPLE-URL\")\r\n"
     "group[0][1]=new Option(\"Kestrel Sites_1b\",\"SAMPLE-URL\")\r\n"
     "group[0][2]=new Option(\"Kestrel Sites_1c\",\"SAMPLE-URL\")\r\n"
     "\r\n"
     "group[1][0]=new Option(\"Kestrel Sites_2a\",\"SAMPLE-URL\")\r\n"
     "group[1][1]=new Option(\"Kestrel Sites_2b\",\"SAMPLE-URL\")\r\n"
     "group[1][2]=new Option(\"Kestrel Sites_2c\",\"SAMPLE-URL\")\r\n"
     "\r\n"
     "group[2][0]=new Option(\"Kestrel Sites_3a\",\"SAMPLE-URL\")\r\n"
     "group[2][1]=new Option(\"Kestrel Sites_3b\",\"SAMPLE-URL\")\r\n"
     "group[2][2]=new Option(\"Kestrel Sites_3c\",\"SAMPLE-URL\")\r\n"
     "group[2][3]=new Option(\"Kestrel Sites_3d\",\"SAMPLE-URL\")\r\n"
     "\r\n"
     "var tmpCbo=document.frmCbo.cbo2\r\n"
     "function redirect(x){\r\n"
     " for (m=tmpCbo.options.length-1;m>0;m--)\r\n"
     "   tmpCbo.options[m]=null\r\n"
     "   for (i=0;i<group[x].length;i++){\r\n"
     "      tmpCbo.options[i]=new Option(group[x][i].text,group[x][i].value)\r\n"
     "   }\r\n"
     "  tmpCbo.options[0].selected=true\r\n"
     "}\r\n"
     " function go(){\r\n"
     "  location=tmpCbo.options[tmpCbo.selectedIndex].value\r\n"
     " }\r\n"
     "//-->\r\n"
     "</script>\r\n"
     "</form>"},
};

}  // namespace

std::string_view ScriptBlock(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= std::size(kScriptBlocks)) return {};
    return kScriptBlocks[index];
}

std::string_view DropMenuKeyword(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= std::size(kDropMenus)) return {};
    return kDropMenus[index].keyword;
}

std::string MakeDropMenu(std::string_view keyword) {
    for (const DropMenu& menu : kDropMenus) {
        if (menu.keyword == keyword) return authoring::ReplaceText(menu.text, kSampleMark, kSampleUrl);
    }
    return {};
}

}  // namespace modScripts
