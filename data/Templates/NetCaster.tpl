<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 3.2 Final//EN">
<HTML>
<HEAD>
<TITLE>%Name%</TITLE>
<SCRIPT LANGUAGE="JavaScript1.2">
<!--
function addChannel() {
    if (typeof components == "undefined" || components["netcaster"] == null) {
        alert("This channel needs Netscape Communicator with NetCaster.");
        return;
    }
    var nc = components["netcaster"];
    nc.activate();
    var channel = nc.getChannelObject();
    channel.url = "%URL%";
    channel.name = "%Name%";
    channel.intervalTime = %Interval%;
    channel.maxCacheSize = %CacheSize%;
    channel.depth = %Depth%;
    channel.active = %Active%;
    channel.mode = "%Mode%";
    channel.type = %Type%;
    nc.addChannel(channel);
}
//-->
</SCRIPT>
</HEAD>
<BODY BGCOLOR="#FFFFFF">
<H1>%Name%</H1>
<P>Add this page to NetCaster as a channel. It is refreshed every %Interval% minutes.</P>
<FORM>
<INPUT TYPE="button" VALUE="%ButtonName%" onClick="addChannel()">
</FORM>
</BODY>
</HTML>
