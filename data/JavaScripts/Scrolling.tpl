<SCRIPT TYPE="text/plain" ID="lfsmessage">%MESSAGE%</SCRIPT>
<SCRIPT LANGUAGE="JavaScript">
<!--
// Scrolling field: the message above runs through the field scrolling of the form scrollform.
var lfsMessage = document.getElementById("lfsmessage").textContent;
var lfsPosition = 0;
function lfsstep() {
    var field = document.scrollform ? document.scrollform.scrolling : null;
    if (!field)
        return;
    var padded = lfsMessage + "          ";
    field.value = padded.substring(lfsPosition) + padded.substring(0, lfsPosition);
    lfsPosition = (lfsPosition + 1) % padded.length;
}
function lfscrolling() {
    setInterval(lfsstep, 150);
}
//-->
</SCRIPT>