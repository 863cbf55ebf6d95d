#include "help/core/help_texts.h"

namespace help {

// clang-format off
const char kIntroHeading[] = "\"Quillon Help\"  ";

const char kIntroWords[] =
    "   A lot for a little. One program file that fits on a diskette holds an editor for any number of pages, the "
    "tags and scripts that you would otherwise type by hand, a chart of colors, a browser preview and a complete "
    "FTP client. It asks for no installation and starts at once."
    " Learn more about the toolbar by clicking the buttons above, and get more functional details from the "
    "\"Features\" menu.\r\n\r\n"
    "   It's lean enough to replace Notepad on an HTML author's machine, and therefore be a mere VIEW SOURCE away "
    "at all times.";

const std::array<Topic, 14> kTopics{{
    {"Image Tag via Drag/Drop",
     "   Drag a GIF or JPEG file from a folder or the desktop and drop it on your page. Quillon reads the picture's "
     "true width and height out of the file itself and writes the whole tag for you, for example "
     "<img src=\"images/logo.gif\" width=\"120\" height=\"60\" border=\"0\">. With its size in the tag, a browser "
     "can lay out the page before the picture has arrived.\r\n\r\n"
     "   The tag goes in at the caret, or in place of the selected text, wherever on the page you let go of the "
     "mouse. Drop several files at once and you get one tag after the other. The name of the file and its size in "
     "bytes appear at the bottom of the main window, and the tag stays on the clipboard to be pasted again.\r\n\r\n"
     "   The tag always points into a folder named images beside your page: keep your pictures there, or change the "
     "path by hand. The name is written just as the file has it, so names without blanks serve you best on a web "
     "server.\r\n\r\n"
     "   A bitmap (BMP) or a file of another kind is refused, and nothing is written. A JPEG counts as one when it "
     "bears the JFIF mark, which pictures straight from a camera may lack; save it once from a picture program. "
     "Where the size cannot be found, as in a progressive JPEG, the tag says 0: fill in the numbers yourself."},

    {"Direct FTP",
     "   Quillon sends pages to your web site by itself. Choose \"Add A Site\" in the Upload menu and enter the "
     "server, your user name and, if you wish, your password. FTP URLs need not include the 'ftp://' prefix. From "
     "then on the site stands in the Upload menu: choose it to connect or to take it off the list, or choose "
     "\"Upload File\" to go straight to the site that you used last.\r\n\r\n"
     "   The FTP window shows the site and a folder on it. A double-click enters a folder, unless its name has a dot. "
     "A right-click on a file offers its size, a download, a new name or its deletion, and files dragged onto the "
     "list are uploaded. \"Upload Current Document\" sends the page that you are editing into the folder on view, "
     "where it replaces a file of the same name.\r\n\r\n"
     "   What is sent is the file on your disk. Save first, or the server gets the page as it was when you saved it "
     "last. Your page is always sent as text, in which the server may change the line ends. Other files are sent as "
     "text too, except .jpg, .gif, .png, .zip, .class and .exe, which are sent byte for byte; \"Ascii\" and \"Auto\" "
     "are alike in this. Choose \"Binary\" before you send or fetch anything else that is no text, a .pdf, .jpeg or "
     ".mp3 for example."
     "\r\n\r\n"
     "   Quillon connects in active mode: the server sends listings and files over a connection that it opens to "
     "your machine. A firewall or a router may stop that, and then the list stays empty and files do not arrive. Let "
     "the firewall admit Quillon; where it still does not work, ask for a server within your own network, or use "
     "another program for passive mode.\r\n\r\n"
     "   A stored password is scrambled against a passing glance. It is no protection against anyone who can use "
     "your account on this machine. Leave \"Save Password\" unchecked on a machine that you share, and Quillon "
     "asks each time. FTP itself sends names, passwords and pages over the network as readable text, so do not use "
     "a password there that guards anything else."},

    {"Line Numbers",
     "   At the lower right of the main window stands the number of the line that holds the caret, counted from 1: "
     "\"Current Line No: 12\". It follows the keys and the mouse, and changes to the other page's line when you "
     "switch pages. With no page open it reads \"No File Open\".\r\n\r\n"
     "   When a browser complains about an error in line 42 of your script, this is how you find line 42. Move down "
     "through the page and watch the number; Page Down gets you there fast.\r\n\r\n"
     "   While Word Wrap is on, what is counted are the lines as you see them, and a long line that is shown as "
     "three counts as three. Turn Word Wrap off to read the numbers that browsers and servers speak of."},

    {"Page Updater",
     "   The line at the lower left of the main window tells what your last command did, so that you need not "
     "confirm a message box for good news. After a save it reads \"Saved :  \" and the full path, which is worth a "
     "glance when two folders hold pages of the same name.\r\n\r\n"
     "   After a replacement it gives the number of occurrences, and after a picture was dropped the picture's name "
     "and size in bytes. A large number there is a hint that your visitors will wait: many an image can be saved "
     "smaller with no difference to the eye.\r\n\r\n"
     "   Only bad news gets a message of its own, and says what could not be done. Your page is then still in its "
     "window, unharmed."},

    {"Page Preview",
     "   Preview shows the page in your web browser as it is at this moment, without making you save it. Quillon "
     "writes a copy beside your file, named with $$ in front ($$index.htm for index.htm) so that relative links "
     "and pictures work, hands it to the browser that your system uses for such pages, and removes the copy some "
     "three seconds later. Your saved file is not touched.\r\n\r\n"
     "   Because the copy is gone by then, the browser's Reload button finds nothing: after further changes press "
     "Preview again. A page without changes is shown from its own file.\r\n\r\n"
     "   A preview is what your own browser, from your own disk, makes of the page. It does not run what only a "
     "server can run, such as ASP, and paths that begin with a slash lead nowhere. Look at the page in another "
     "browser too, and once more after the upload."},

    {"Page Reset",
     "   Reset takes the page back to how you saved it last: the file is read again and takes the place of "
     "everything in the window. It is the way out when an experiment has led nowhere.\r\n\r\n"
     "   All changes since the last save go, not only the latest one. The text that you gave up is put on the "
     "clipboard, so a change of mind is possible: paste it into a new page before you cut or copy anything else. "
     "The clipboard's former content is lost.\r\n\r\n"
     "   A page that was never saved has nothing to go back to, and a page without changes needs no reset; in both "
     "cases Quillon says so and changes nothing. To take back just your last step, use Undo."},

    {"Spell Checker",
     "   Quillon carries no dictionary. Where Microsoft Word is installed, your text is handed to Word and its own "
     "spelling dialog appears. Without Word, the spell checker that Windows has had since Windows 8 looks through "
     "the text, in a dialog of Quillon's. Either way the corrected text comes back into your page.\r\n\r\n"
     "   There are two modes. With some text selected, only that text is checked and replaced. With nothing "
     "selected, the whole page is. The first is often better for HTML, because Word takes tags and scripts for "
     "misspelled words: select a paragraph, check it, go on to the next. Choose Ignore when it stumbles over a tag, "
     "and never let it change what stands between < and >.\r\n\r\n"
     "   The page as it was before the check is left on the clipboard, and the corrected page is not saved until "
     "you save it. Where there is neither Word nor the system's checker you get a message, and your page stays as "
     "it is."},

    {"Change Spying",
     "   Quillon keeps watch over every open page and knows whether it has changed since it was last saved. Close a "
     "changed page, or the whole program with changed pages in it, and you are asked for each one, by its name, "
     "whether to save it. Unchanged pages close without a word. If the program or the machine crashes, your changed "
     "pages come back at the next start.\r\n\r\n"
     "   Yes opens the Save As dialog, so that you can keep the old file and store the new text under another name. "
     "If no file comes of it, the page's text is left on the clipboard. No throws the changes away for good.\r\n\r\n"
     "   The same watch tells Preview whether it needs a copy, and Reset whether there is anything to take back. "
     "Uploading does not count as saving: it sends the file that is on your disk."},

    {"Current List",
     "   The \"Current\" menu lists the pages that you have open, with a check mark at the one you are working on. "
     "Choose another and it comes to the front, even from behind a maximized page or out of an icon.\r\n\r\n"
     "   A saved page is listed under the name of its file, a new one as Untitled with a running number. Two files "
     "of the same name from different folders look alike in the list; the recent files in the File menu tell full "
     "paths.\r\n\r\n"
     "   F9, F11 and F12 set the window of the current page to normal, minimized or maximized."},

    {"MRU List",
     "   The File menu remembers the seven files that you used most recently, the latest first, so yesterday's work "
     "is one click away. Opening or saving a file puts it at the top; one that is already listed moves up and is "
     "not listed twice.\r\n\r\n"
     "   Files in your system's temporary folder are not listed. Those are the copies that browsers make when you "
     "view the source of a page, and they would soon push out the files that are yours. A new page is listed once "
     "you have saved it.\r\n\r\n"
     "   A file that was moved or deleted disappears from the list when another file is added. If you choose it before "
     "that, Quillon says that it is gone."},

    {"To Replace Notepad...",
     "   Put Quillon in place of Notepad and it opens whatever your system would open there: text files by a "
     "double-click, and web pages when your browser shows their source. Any program that starts an editor with the "
     "path of a file, without quotes, can start Quillon. If it is running already, the file opens in the same "
     "window.\r\n\r\n"
     "   On Windows 95 and 98 Notepad is the file NOTEPAD.EXE in the Windows folder. Give it another name, such as "
     "NOTEPAD.OLD, then copy Quillon.exe into the same folder under the name NOTEPAD.EXE.\r\n\r\n"
     "   On Windows NT4 there are two copies, one in the WINNT folder and one in the SYSTEM32 folder inside it. Do "
     "the same with both of them; you need the rights of an administrator.\r\n\r\n"
     "   This build of Quillon is made for Windows XP and later, and those guard their Notepad and put it back. "
     "There, leave the file alone and choose Quillon under \"Open With\" in the menu of a .txt or .htm file. "
     "Windows then hands over paths in quotes, which Quillon answers with a new page; so start regedit, go to "
     "HKEY_CLASSES_ROOT\\Applications\\Quillon.exe\\shell\\open\\command and take away the quotes round %1. Where "
     "your browser's options name an HTML editor or source viewer, name Quillon there.\r\n\r\n"
     "   To undo any of this, give the old file its name back or choose the old program again. Quillon itself "
     "changes nothing in your system."},

    {"About word wrap",
     "   Why is there no word wrap? Because a line of HTML is a line: scripts, server pages and error messages "
     "count them, and so does the line number below your page. A page is shown as it is in its file, and long "
     "lines run on to the right.\r\n\r\n"
     "   When you would rather read than count, turn it on: \"Word Wrap\" in the Options menu, or Ctrl+W, breaks "
     "long lines at the edge of the window. It works for the current page only, and it is off again for the next "
     "page that you open.\r\n\r\n"
     "   Wrapping is only a way of looking at the page: no line break is added to your text or to the file that you "
     "save. The line number, though, counts the lines as they are shown while it is on."},

    {"Color Tags",
     "   The chart shows the 216 colors that all browsers display without mixing dots, whatever the screen. Open it "
     "with the Color button or with Ctrl+D while you type. Click a color and its code, such as \"#CCFF00\" with its "
     "quotes, stands at the caret or in place of the selected text, ready behind bgcolor= or color=. The chart then "
     "closes; Esc closes it without a choice.\r\n\r\n"
     "   The code goes by way of the clipboard and stays there, so you can paste the same color once more. What was "
     "on the clipboard before is replaced.\r\n\r\n"
     "   The digits are three pairs, for red, green and blue, each 00, 33, 66, 99, CC or FF. Within each block of "
     "the chart green grows downwards and blue to the right, and from block to block red grows; the corners are "
     "black and white. Text is easiest to read where one color is from the dark end and the other from the light."},

    {"About Printing",
     "   Print sends the current page to your default printer at once, as plain text: no dialog, no preview, no "
     "colors. Choose another default printer in the system's settings to print elsewhere.\r\n\r\n"
     "   The first sheet is headed by the path of the file, which is missing for a page that was never saved. Lines "
     "that are too long for the paper are broken at a blank, and a word that is wider than the line is broken where "
     "it has to be, so nothing is lost at the edge. Broken lines make a printed page longer than the line numbers "
     "on the screen suggest.\r\n\r\n"
     "   What is printed is the text in the window with all its tags, saved or not. To print the page as visitors "
     "see it, press Preview and print from the browser. An empty page prints nothing, and without a printer you get "
     "the message \"Printer Error\"."},
}};

namespace {

constexpr auto kButtonWords = std::to_array<const char*>({
    "The new document button...\r\n\r\n"
    "   Opens a new page that already has the outline of an HTML document: head, title and body, with room for your "
    "text. It is named Untitled with a running number until you save it, and closing it without typing anything "
    "asks no question. F2 does the same.",

    "The Open document Button...\r\n\r\n"
    "   Opens a file in a window of its own, with the file dialog of your system. Any text file will do, of any "
    "length; the type that the dialog shows first is set in the Options menu.\r\n\r\n"
    "   A file that is already open is not opened twice: look for it in the \"Current\" menu. F3 does the same as "
    "this button.",

    "The Close document Button...\r\n\r\n"
    "   Closes the current page. If it has changed since it was last saved, you are asked whether to save it first; "
    "No throws the changes away. F6 does the same.",

    "The Save document Button...\r\n\r\n"
    "   Writes the page to its file. A page that has no file yet, or whose file has been moved, opens the Save As "
    "dialog instead. The line at the bottom of the main window confirms where the page went.\r\n\r\n"
    "   A saved file always ends with a line break, whether or not the page does, and is in the encoding that the "
    "page names: write <META CHARSET=\"utf-8\"> into it to have it saved in that. F7 does the same as this button.",

    "The Save As document Button...\r\n\r\n"
    "   Writes the page to a file of your choice, and goes on with that file from then on. The former file stays as "
    "it is, which makes this a good way to begin one page from another. The system asks before a file of the same "
    "name is replaced. F8 does the same.",

    "Editing Buttons (all)...\r\n\r\n"
    "   Cut and Copy put the selected text on the clipboard, and Cut takes it off the page. Paste puts the "
    "clipboard's text at the caret or in place of the selected text; it takes the plain text only, so nothing but "
    "characters comes over from a word processor or a browser.\r\n\r\n"
    "   Undo takes back the last step. Count on one step only: use it as soon as you notice a slip. For everything "
    "since the last save there is Reset. Undo takes back Reset, Replace All and the spelling of a page too.\r\n\r\n"
    "   The keys are the usual ones: Ctrl+X, Ctrl+C, Ctrl+V and Ctrl+Z.",

    "The Find Button...\r\n\r\n"
    "   Looks for text from the caret onwards, whatever the case of its letters, selects the first place where it "
    "stands and counts those from there to the end of the page. Find Next goes on to the next one, and at the end "
    "you can start again from the top.\r\n\r\n"
    "   The window stays open while you edit, belongs to the page that it was opened for, and closes with it. Ctrl+F "
    "does the same as this button.",

    "The Replace Button...\r\n\r\n"
    "   Replace changes the first place in the page, counted from the top, where the text stands; Replace All "
    "changes every one and tells the number at the bottom of the main window. Capital and small letters must match "
    "exactly, so <BR> is not <br>.\r\n\r\n"
    "   The new text cannot be empty: to remove text, select it and press Delete. After Replace All the new page is "
    "on the clipboard too. Look before you leap: a short text such as \"a\" stands in more places than one thinks. "
    "Ctrl+H does the same as this button.",

    "The Reset Button...\r\n\r\n"
    "   Takes the page back to how it was last saved. Everything that you changed since then goes, but is left on "
    "the clipboard in case you think better of it. On the keyboard, Ctrl+T lists all the buttons. See "
    "\"Reset\" in the \"Features\" menu.",

    "The Preview Button...\r\n\r\n"
    "   Shows the page in your web browser as it stands, without saving it. A changed page is shown from a copy that "
    "is removed again after some seconds, so press Preview, not the browser's Reload, to see later changes. "
    "On the keyboard, Ctrl+T lists all the buttons. See \"Preview\" in the \"Features\" menu.",

    "The Spelling-Check Button...\r\n\r\n"
    "   Has Microsoft Word or your system's spell checker go through the selected text, or through the whole page "
    "when nothing is selected. Take care that your tags are not \"corrected\". The unchecked page is left on the "
    "clipboard. On the keyboard, Ctrl+T lists all the buttons. See \"Spell Check\" in the \"Features\" "
    "menu.",

    "The Printer Button...\r\n\r\n"
    "   Prints the text of the current page, tags and all, on your default printer, at once and without a dialog. "
    "Ctrl+P does the same. See \"Print\" in the \"Features\" menu.",

    "The Color Button...\r\n\r\n"
    "   Opens the chart of the 216 web-safe colors. Click one, and its code is written at the caret, in quotes and "
    "ready for use in a tag; the chart then closes. Ctrl+D does the same while you type, and Esc closes the chart "
    "without a choice.",

    "This file.\r\n\r\n"
    "   The ABOUT file is available through the HELP menu item only.",
});

constexpr std::size_t kFirstEditing = 5;  // cut, copy, paste and undo share one text
constexpr std::size_t kLastEditing = 8;

}  // namespace
// clang-format on

std::string ButtonWords(std::size_t index) {
    if (index > kLastEditing) {
        index -= kLastEditing - kFirstEditing;
    } else if (index > kFirstEditing) {
        index = kFirstEditing;
    }
    return index < kButtonWords.size() ? kButtonWords[index] : "";
}

}  // namespace help
