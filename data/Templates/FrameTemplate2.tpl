 <FRAMESET ROWS="15%,70%,15%">
       <FRAME  SRC="header.htm" NAME="header" SCROLLING=NO NORESIZE>
       <FRAME  SRC="main.htm" NAME="main" SCROLLING=AUTO>
       <FRAME  SRC="footer.htm" NAME="footer" SCROLLING=NO NORESIZE>
 </FRAMESET>
