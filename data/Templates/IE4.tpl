<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Transitional//EN">
<HTML>
<HEAD>
<META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1252">
<META NAME="Generator" CONTENT="Quillery 4.01">
<META HTTP-EQUIV="Page-Enter" CONTENT="revealTrans(Duration=1.0,Transition=12)">
<TITLE> type_Document_Title_here </TITLE>
<STYLE TYPE="text/css">
<!--
BODY { font-family: Verdana, Arial, sans-serif; margin: 10px }
-->
</STYLE>
<SCRIPT LANGUAGE="JavaScript">
<!--
function window_onload() {
}
//-->
</SCRIPT>
</HEAD>
<BODY onLoad="window_onload()">

</BODY>
</HTML>
