<FRAMESET COLS="20%,80%">
       <FRAME  SRC="nav.htm" NAME="nav" SCROLLING=AUTO>
       <FRAME  SRC="main.htm" NAME="main" SCROLLING=AUTO>
 </FRAMESET>
