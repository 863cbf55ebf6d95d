// What a new page holds.
#pragma once

namespace document {

inline constexpr char kPageOutline[] =
    "<HTML>\r\n"
    "<HEAD>\r\n"
    "<TITLE> * UNTITLED PAGE * </TITLE>\r\n"
    "<META NAME=\"generator\" CONTENT=\"Quillon\">\r\n"
    "</HEAD>\r\n"
    "<BODY>\r\n"
    "\r\n"
    "\r\n"
    "\r\n"
    "\r\n"
    "</BODY>\r\n"
    "</HTML>";

}  // namespace document
