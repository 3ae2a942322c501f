 <FRAMESET ROWS="20%,80%">
       <FRAME  SRC="banner.htm" NAME="banner" SCROLLING=NO NORESIZE>
       <FRAME  SRC="main.htm" NAME="main" SCROLLING=AUTO>
 </FRAMESET>
