<!-- Ad space: a banner row across the top, the page and a side column of ads below -->
<TABLE BORDER=0 WIDTH="100%" CELLPADDING=4 CELLSPACING=0>
<TR>
	<TD COLSPAN=2 ALIGN=center BGCOLOR="#EEEEEE">Banner advertisement (468 x 60)</TD>

</TR>
<TR>
	<TD VALIGN=top>Your page text goes here.</TD>
	<TD VALIGN=top WIDTH=130 BGCOLOR="#EEEEEE">Side advertisement (120 x 240)</TD>

</TR>
</TABLE>
