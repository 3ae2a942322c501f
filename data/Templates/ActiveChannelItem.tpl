<ITEM HREF="%ItemURL%">
<TITLE>%ItemName%</TITLE>
</ITEM>
