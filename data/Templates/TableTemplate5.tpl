<!-- Header and footer: a header row, the page, a footer row -->
<TABLE BORDER=0 WIDTH="100%" CELLPADDING=6 CELLSPACING=0>
<TR>
	<TD BGCOLOR="#CCCCFF">Header: site name and logo</TD>

</TR>
<TR>
	<TD HEIGHT=300 VALIGN=top>Your page text goes here.</TD>

</TR>
<TR>
	<TD BGCOLOR="#CCCCFF" ALIGN=center><SMALL>Footer: copyright and contact</SMALL></TD>

</TR>
</TABLE>
