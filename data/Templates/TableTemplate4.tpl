<!-- Newspaper: a masthead over three columns of text -->
<TABLE BORDER=0 WIDTH="100%" CELLPADDING=8>
<TR>
	<TH COLSPAN=3><FONT SIZE=7>The Daily Page</FONT></TH>

</TR>
<TR>
	<TD VALIGN=top WIDTH="33%">First column.</TD>
	<TD VALIGN=top WIDTH="33%">Second column.</TD>
	<TD VALIGN=top WIDTH="33%">Third column.</TD>

</TR>
</TABLE>
