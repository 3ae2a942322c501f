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
<FORM>
<INPUT TYPE="button" VALUE="%ButtonName%" onClick="addChannel()">
</FORM>
