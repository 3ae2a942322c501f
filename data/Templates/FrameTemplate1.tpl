<FRAMESET COLS="25%,50%,25%">
       <FRAME  SRC="left.htm" NAME="left" SCROLLING=AUTO>
       <FRAME  SRC="main.htm" NAME="main" SCROLLING=AUTO>
       <FRAME  SRC="right.htm" NAME="right" SCROLLING=AUTO>
 </FRAMESET>
