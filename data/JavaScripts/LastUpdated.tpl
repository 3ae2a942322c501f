<SCRIPT LANGUAGE="JavaScript">
<!--
document.write("Last updated: " + document.lastModified);
//-->
</SCRIPT>
