<SCRIPT LANGUAGE="JavaScript">
<!--
// Clock: the time in the field lfcname of the form lfcinput, once a second.
var lfcTimer = null;
function lfcshow() {
    var now = new Date();
    var h = now.getHours(), m = now.getMinutes(), s = now.getSeconds();
    var text = h + ":" + (m < 10 ? "0" : "") + m + ":" + (s < 10 ? "0" : "") + s;
    if (document.lfcinput && document.lfcinput.lfcname)
        document.lfcinput.lfcname.value = text;
}
function lfcstart() {
    lfcstop();
    lfcshow();
    lfcTimer = setInterval(lfcshow, 1000);
}
function lfcstop() {
    if (lfcTimer != null)
        clearInterval(lfcTimer);
    lfcTimer = null;
}
//-->
</SCRIPT>