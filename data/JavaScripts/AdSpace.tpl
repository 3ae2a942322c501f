<SPAN CLASS="qlAdSpace">
%FOREACH%<TEMPLATE><A HREF="%URL%"><IMG SRC="%IMAGEURL%" BORDER=0 ALT=""></A>%IMAGETEXT%</TEMPLATE>
%ENDFOREACH%<SCRIPT LANGUAGE="JavaScript">
<!--
// Random banner: one of the pictures above, chosen afresh at each visit.
(function () {
    var space = document.currentScript.parentNode;
    var ads = space.getElementsByTagName("template");
    var count =%QLNumOfAds%;
    if (count > 0 && ads.length >= count)
        space.appendChild(ads[Math.floor(Math.random() * count)].content.cloneNode(true));
})();
//-->
</SCRIPT>
</SPAN>
