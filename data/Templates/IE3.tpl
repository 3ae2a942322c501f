<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 3.2 Final//EN">
<HTML>
<HEAD>
<TITLE> type_Document_Title_here </TITLE>
<META NAME="Generator" CONTENT="Quillery 4.01">
<STYLE TYPE="text/css">
<!--
BODY { font-family: Arial, Helvetica, sans-serif }
-->
</STYLE>
</HEAD>
<BODY BGCOLOR="#FFFFFF" TEXT="#000000" LEFTMARGIN="10" TOPMARGIN="10">

</BODY>
</HTML>
