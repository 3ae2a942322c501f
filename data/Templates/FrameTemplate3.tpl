<FRAMESET COLS="30%,70%">
       <FRAME  SRC="contents.htm" NAME="contents" SCROLLING=AUTO>
 <FRAMESET ROWS="33%,33%,33%">
       <FRAME  SRC="first.htm" NAME="first" SCROLLING=AUTO>
       <FRAME  SRC="second.htm" NAME="second" SCROLLING=AUTO>
       <FRAME  SRC="third.htm" NAME="third" SCROLLING=AUTO>
 </FRAMESET>
 </FRAMESET>
