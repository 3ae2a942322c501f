<?xml version="1.0" encoding="ISO-8859-1"?>
<CHANNEL HREF="%URL%" SELF="%Self%">
<TITLE>%Name%</TITLE>
<ABSTRACT>%Abstract%</ABSTRACT>
<SCHEDULE>
<INTERVALTIME HOUR="%Frequency%"/>
</SCHEDULE>
<ITEM HREF="%ItemURL%">
<TITLE>%ItemName%</TITLE>
<ABSTRACT>%LongName%</ABSTRACT>
</ITEM>
</CHANNEL>
