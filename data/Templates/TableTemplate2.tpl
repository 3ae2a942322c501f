<!-- Headline: a wide headline over the story in one column -->
<TABLE BORDER=0 WIDTH="100%" CELLPADDING=6>
<TR>
	<TH ALIGN=left><FONT SIZE=6>Headline goes here</FONT></TH>

</TR>
<TR>
	<TD><I>A line that sums up the story.</I></TD>

</TR>
<TR>
	<TD>The story begins here.</TD>

</TR>
</TABLE>
