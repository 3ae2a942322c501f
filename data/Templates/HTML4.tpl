<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Transitional//EN" "http://www.w3.org/TR/REC-html40/loose.dtd">
<HTML>
<HEAD>
<META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=ISO-8859-1">
<META NAME="Generator" CONTENT="Quillery 4.01">
<TITLE> type_Document_Title_here </TITLE>
<STYLE TYPE="text/css">
<!--
-->
</STYLE>
</HEAD>
<BODY>

</BODY>
</HTML>
