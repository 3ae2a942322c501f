 <FRAMESET ROWS="20%,80%">
       <FRAME  SRC="headline.htm" NAME="headline" SCROLLING=NO>
  <FRAMESET COLS="25%,75%">
       <FRAME  SRC="nav.htm" NAME="nav" SCROLLING=AUTO>
        <FRAME  SRC="main.htm" NAME="main" SCROLLING=AUTO>
  </FRAMESET>
 </FRAMESET>
