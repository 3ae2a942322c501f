<HTML>
<HEAD>
<TITLE> type_Document_Title_here </TITLE>
</HEAD>
<BODY>
<H1>Heading</H1>
<P>
</BODY>
</HTML>
