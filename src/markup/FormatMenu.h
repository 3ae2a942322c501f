#pragma once

namespace qly::markup {

// The Format menu's tag commands and the formatting tools, one function a
// command. Each works on the current document's selection and does nothing
// when no document is open.

// "<STRONG>" or, with [General] "Strong and Emphasis" = "No", "<B>"; decided
// on every call. Bold to Smaller add their tags even round the same tags.
void FormatBold_Click();
void FormatItalic_Click();      // "<EM>" or "<I>", as Bold
void FormatUnderline_Click();   // "<U>"
void FormatBigger_Click();      // "<FONT SIZE=+1>" ... "</FONT SIZE>"
void FormatSmaller_Click();     // "<FONT SIZE=-1>" ... "</FONT SIZE>"
void FormatLeft_Click();        // "<LEFT>"
void FormatCenter_Click();      // "<CENTER>"
void FormatRight_Click();       // "<RIGHT>"
// A larger first letter of the selection, or of the word at the caret:
// "<FONT SIZE=" [General] "Big First Letter Size" (default "+2") ">". The
// caret goes back where it was.
void FormatDropCaps_Click();

void tlbHead_Click(int level);  // "<H1>" to "<H6>"
void tlbIndent_Click();         // "<BLOCKQUOTE>"
void tlbOutdent_Click();        // the same as Indent: wraps, does not unwrap
void tlbNBSP_Click();           // "&nbsp;" in place of the selection
// Each line break of the selection gets a "<BR>" before it; with nothing
// selected, "<BR>".
void tlbBreak_Click();
// Each line of the selection becomes "<P>line</P>" with [General]
// "P is a Container" on, else "line<P>", followed by CR LF; with nothing
// selected, the empty pair or a single "<P>".
void tlbParagraph_Click();

} // namespace qly::markup
