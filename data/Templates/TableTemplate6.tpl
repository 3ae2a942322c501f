<!-- Navigation: a column of links beside the page -->
<TABLE BORDER=0 WIDTH="100%" CELLPADDING=6 CELLSPACING=0>
<TR>
	<TD VALIGN=top WIDTH=150 BGCOLOR="#EEEEEE">
	<A HREF="index.html">Home</A><BR>
	<A HREF="about.html">About</A><BR>
	<A HREF="products.html">Products</A><BR>
	<A HREF="contact.html">Contact</A>
	</TD>
	<TD VALIGN=top>Your page text goes here.</TD>

</TR>
</TABLE>
