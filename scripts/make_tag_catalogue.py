#!/usr/bin/env python3
"""Writes data/tags.inf, the tag catalogue of the tag tree and the colouring.

The lists below were put together by hand from the public specifications
(HTML 2.0, HTML 3.2, HTML 4.01, today's HTML), the browser makers' published
tag and scripting references, and the public CFML and WebTV authoring notes.
Run it from the repository's root: python3 scripts/make_tag_catalogue.py
"""

H2 = """A ADDRESS B BASE BLOCKQUOTE BODY BR CITE CODE DD DIR DL DT EM FORM H1 H2 H3 H4
H5 H6 HEAD HR HTML I IMG INPUT ISINDEX KBD LI LINK LISTING MENU META NEXTID OL OPTION
P PLAINTEXT PRE SAMP SELECT STRONG TEXTAREA TITLE TT UL VAR XMP""".split()

H32 = [t for t in H2 if t != "NEXTID"] + """APPLET AREA BASEFONT BIG CAPTION CENTER DFN
DIV FONT MAP PARAM SCRIPT SMALL STRIKE STYLE SUB SUP TABLE TD TH TR U""".split()

H4 = """A ABBR ACRONYM ADDRESS APPLET AREA B BASE BASEFONT BDO BIG BLOCKQUOTE BODY BR
BUTTON CAPTION CENTER CITE CODE COL COLGROUP DD DEL DFN DIR DIV DL DT EM FIELDSET FONT
FORM FRAME FRAMESET H1 H2 H3 H4 H5 H6 HEAD HR HTML I IFRAME IMG INPUT INS ISINDEX KBD
LABEL LEGEND LI LINK MAP MENU META NOFRAMES NOSCRIPT OBJECT OL OPTGROUP OPTION P PARAM
PRE Q S SAMP SCRIPT SELECT SMALL SPAN STRIKE STRONG STYLE SUB SUP TABLE TBODY TD
TEXTAREA TFOOT TH THEAD TITLE TR TT U UL VAR""".split()

H5 = """A ABBR ADDRESS AREA ARTICLE ASIDE AUDIO B BASE BDI BDO BLOCKQUOTE BODY BR BUTTON
CANVAS CAPTION CITE CODE COL COLGROUP DATA DATALIST DD DEL DETAILS DFN DIALOG DIV DL DT
EM EMBED FIELDSET FIGCAPTION FIGURE FOOTER FORM H1 H2 H3 H4 H5 H6 HEAD HEADER HGROUP HR
HTML I IFRAME IMG INPUT INS KBD LABEL LEGEND LI LINK MAIN MAP MARK MATH MENU META METER
NAV NOSCRIPT OBJECT OL OPTGROUP OPTION OUTPUT P PICTURE PRE PROGRESS Q RP RT RUBY S
SAMP SCRIPT SEARCH SECTION SELECT SLOT SMALL SOURCE SPAN STRONG STYLE SUB SUMMARY SUP
SVG TABLE TBODY TD TEMPLATE TEXTAREA TFOOT TH THEAD TIME TITLE TR TRACK U UL VAR VIDEO
WBR""".split()

# Browser sets grow from one version to the next.
NN1 = H2 + "BLINK CENTER FONT BASEFONT NOBR WBR".split()
NN2 = NN1 + """TABLE TR TD TH CAPTION FRAME FRAMESET NOFRAMES APPLET PARAM SCRIPT MAP AREA
EMBED NOEMBED BIG SMALL SUB SUP DIV U STRIKE""".split()
NN3 = NN2 + "SPACER MULTICOL NOSCRIPT SERVER KEYGEN STYLE".split()
NN4 = NN3 + "LAYER ILAYER NOLAYER SPAN OBJECT".split()
IE3 = H32 + """MARQUEE BGSOUND IFRAME FRAME FRAMESET NOFRAMES EMBED NOEMBED OBJECT COMMENT
NOBR WBR SPAN S""".split()
IE4 = IE3 + """DEL INS LABEL FIELDSET LEGEND BUTTON Q ACRONYM TBODY THEAD TFOOT COL COLGROUP
XML NOSCRIPT""".split()
WEBTV = H32 + """AUDIOSCOPE BLACKFACE SHADOW SIDEBAR NOSMARTQUOTES BLINK MARQUEE BGSOUND
EMBED NOEMBED NOBR WBR SPACER""".split()

# Elements without an end tag.
EMPTY = set("""AREA BASE BASEFONT BR COL EMBED FRAME HR IMG INPUT ISINDEX KEYGEN LINK META
NEXTID PARAM SOURCE SPACER TRACK WBR BGSOUND AUDIOSCOPE""".split())

DESC = {
    "A": ("Links", "Anchor: a link or a link target"),
    "ABBR": ("Text", "Abbreviation"),
    "ACRONYM": ("Text", "Acronym"),
    "ADDRESS": ("Text", "Contact information of the author"),
    "APPLET": ("Objects", "Java applet"),
    "AREA": ("Images", "Region of a client-side image map"),
    "ARTICLE": ("Sections", "Self-contained composition"),
    "ASIDE": ("Sections", "Content aside from the main flow"),
    "AUDIO": ("Objects", "Sound or audio stream"),
    "AUDIOSCOPE": ("Objects", "Audio level display (WebTV)"),
    "B": ("Text", "Bold text"),
    "BASE": ("Document", "Base address of the document's links"),
    "BASEFONT": ("Text", "Base font size"),
    "BDI": ("Text", "Text isolated for bidirectional layout"),
    "BDO": ("Text", "Overrides the text direction"),
    "BGSOUND": ("Objects", "Background sound"),
    "BIG": ("Text", "Larger text"),
    "BLACKFACE": ("Text", "Heavy black type (WebTV)"),
    "BLINK": ("Text", "Blinking text"),
    "BLOCKQUOTE": ("Text", "Long quotation"),
    "BODY": ("Document", "Body of the document"),
    "BR": ("Text", "Line break"),
    "BUTTON": ("Forms", "Push button"),
    "CANVAS": ("Objects", "Scripted drawing surface"),
    "CAPTION": ("Tables", "Table caption"),
    "CENTER": ("Text", "Centred block"),
    "CITE": ("Text", "Citation"),
    "CODE": ("Text", "Program code"),
    "COL": ("Tables", "Table column"),
    "COLGROUP": ("Tables", "Group of table columns"),
    "COMMENT": ("Text", "Comment shown by no browser"),
    "DATA": ("Text", "Content with a machine-readable value"),
    "DATALIST": ("Forms", "Suggestions for an input"),
    "DD": ("Lists", "Definition description"),
    "DEL": ("Text", "Deleted text"),
    "DETAILS": ("Sections", "Disclosure widget"),
    "DFN": ("Text", "Defining instance of a term"),
    "DIALOG": ("Sections", "Dialog box"),
    "DIR": ("Lists", "Directory list"),
    "DIV": ("Sections", "Generic block"),
    "DL": ("Lists", "Definition list"),
    "DT": ("Lists", "Definition term"),
    "EM": ("Text", "Emphasis"),
    "EMBED": ("Objects", "Embedded plug-in content"),
    "FIELDSET": ("Forms", "Group of form controls"),
    "FIGCAPTION": ("Sections", "Caption of a figure"),
    "FIGURE": ("Sections", "Figure with an optional caption"),
    "FONT": ("Text", "Font size, colour and face"),
    "FOOTER": ("Sections", "Footer of a section"),
    "FORM": ("Forms", "Form"),
    "FRAME": ("Frames", "Frame of a frameset"),
    "FRAMESET": ("Frames", "Frameset"),
    "HEAD": ("Document", "Head of the document"),
    "HEADER": ("Sections", "Header of a section"),
    "HGROUP": ("Sections", "Heading with its subheadings"),
    "HR": ("Text", "Horizontal rule"),
    "HTML": ("Document", "Root of the document"),
    "I": ("Text", "Italic text"),
    "IFRAME": ("Frames", "Inline frame"),
    "ILAYER": ("Sections", "Inline layer"),
    "IMG": ("Images", "Image"),
    "INPUT": ("Forms", "Form control"),
    "INS": ("Text", "Inserted text"),
    "ISINDEX": ("Forms", "Single-line search prompt"),
    "KBD": ("Text", "Text the user types"),
    "KEYGEN": ("Forms", "Key pair generator"),
    "LABEL": ("Forms", "Label of a form control"),
    "LAYER": ("Sections", "Positioned layer"),
    "LEGEND": ("Forms", "Caption of a fieldset"),
    "LI": ("Lists", "List item"),
    "LINK": ("Document", "Link to a related resource"),
    "LISTING": ("Text", "Preformatted listing"),
    "MAIN": ("Sections", "Main content"),
    "MAP": ("Images", "Client-side image map"),
    "MARK": ("Text", "Highlighted text"),
    "MARQUEE": ("Text", "Scrolling text"),
    "MATH": ("Objects", "MathML formula"),
    "MENU": ("Lists", "Menu list"),
    "META": ("Document", "Document metadata"),
    "METER": ("Forms", "Scalar measurement"),
    "MULTICOL": ("Sections", "Multi-column text"),
    "NAV": ("Sections", "Navigation links"),
    "NEXTID": ("Document", "Next identifier for editors"),
    "NOBR": ("Text", "No line breaks"),
    "NOEMBED": ("Objects", "Content without plug-ins"),
    "NOFRAMES": ("Frames", "Content without frames"),
    "NOLAYER": ("Sections", "Content without layers"),
    "NOSCRIPT": ("Scripts", "Content without scripts"),
    "NOSMARTQUOTES": ("Text", "Straight quotation marks (WebTV)"),
    "OBJECT": ("Objects", "Embedded object"),
    "OL": ("Lists", "Ordered list"),
    "OPTGROUP": ("Forms", "Group of options"),
    "OPTION": ("Forms", "Option of a selection list"),
    "OUTPUT": ("Forms", "Result of a calculation"),
    "P": ("Text", "Paragraph"),
    "PARAM": ("Objects", "Parameter of an object or applet"),
    "PICTURE": ("Images", "Image with alternative sources"),
    "PLAINTEXT": ("Text", "Plain text to the end of the page"),
    "PRE": ("Text", "Preformatted text"),
    "PROGRESS": ("Forms", "Progress of a task"),
    "Q": ("Text", "Short quotation"),
    "RP": ("Text", "Ruby fallback parenthesis"),
    "RT": ("Text", "Ruby annotation text"),
    "RUBY": ("Text", "Ruby annotation"),
    "S": ("Text", "Struck-through text"),
    "SAMP": ("Text", "Sample output"),
    "SCRIPT": ("Scripts", "Script"),
    "SEARCH": ("Sections", "Search facility"),
    "SECTION": ("Sections", "Generic section"),
    "SELECT": ("Forms", "Selection list"),
    "SERVER": ("Scripts", "Server-side script"),
    "SHADOW": ("Text", "Shadowed text (WebTV)"),
    "SIDEBAR": ("Sections", "Side panel (WebTV)"),
    "SLOT": ("Sections", "Slot of a shadow tree"),
    "SMALL": ("Text", "Smaller text"),
    "SOURCE": ("Objects", "Media source"),
    "SPACER": ("Text", "White space of a given size"),
    "SPAN": ("Text", "Generic inline container"),
    "STRIKE": ("Text", "Struck-through text"),
    "STRONG": ("Text", "Strong emphasis"),
    "STYLE": ("Document", "Style sheet"),
    "SUB": ("Text", "Subscript"),
    "SUMMARY": ("Sections", "Summary of a details element"),
    "SUP": ("Text", "Superscript"),
    "SVG": ("Objects", "SVG drawing"),
    "TABLE": ("Tables", "Table"),
    "TBODY": ("Tables", "Table body"),
    "TD": ("Tables", "Table cell"),
    "TEMPLATE": ("Scripts", "Template for scripts"),
    "TEXTAREA": ("Forms", "Multi-line text field"),
    "TFOOT": ("Tables", "Table footer"),
    "TH": ("Tables", "Table header cell"),
    "THEAD": ("Tables", "Table header"),
    "TIME": ("Text", "Date or time"),
    "TITLE": ("Document", "Title of the document"),
    "TR": ("Tables", "Table row"),
    "TRACK": ("Objects", "Timed text track of media"),
    "TT": ("Text", "Teletype text"),
    "U": ("Text", "Underlined text"),
    "UL": ("Lists", "Unordered list"),
    "VAR": ("Text", "Variable"),
    "VIDEO": ("Objects", "Video"),
    "WBR": ("Text", "Possible line break"),
    "XML": ("Scripts", "XML data island"),
    "XMP": ("Text", "Example text"),
}
for n in range(1, 7):
    DESC["H%d" % n] = ("Headings", "Heading level %d" % n)

CF_CONTAINERS = """CFIF CFOUTPUT CFQUERY CFLOOP CFSCRIPT CFTRY CFCATCH CFSWITCH CFCASE
CFDEFAULTCASE CFMAIL CFFORM CFTRANSACTION CFLOCK CFSILENT CFSAVECONTENT CFFUNCTION
CFCOMPONENT CFTIMER CFTREE CFGRID CFTABLE CFSELECT CFHTTP CFLDAP CFPROCESSINGDIRECTIVE
CFSTOREDPROC CFREPORT CFAPPLICATION""".split()
CF_EMPTY = """CFABORT CFARGUMENT CFASSOCIATE CFBREAK CFCOL CFCOLLECTION CFCONTENT CFCOOKIE
CFDIRECTORY CFDUMP CFELSE CFELSEIF CFERROR CFEXECUTE CFEXIT CFFILE CFFLUSH CFFTP CFGRIDCOLUMN
CFGRIDROW CFGRIDUPDATE CFHEADER CFHTMLHEAD CFHTTPPARAM CFINCLUDE CFINDEX CFINPUT CFINSERT
CFINVOKE CFINVOKEARGUMENT CFLOCATION CFLOG CFMAILPARAM CFMODULE CFOBJECT CFPARAM CFPOP
CFPROCPARAM CFPROCRESULT CFQUERYPARAM CFREGISTRY CFRETHROW CFRETURN CFSCHEDULE CFSEARCH
CFSET CFSETTING CFSLIDER CFTEXTINPUT CFTHROW CFTRACE CFTREEITEM CFUPDATE CFWDDX CFAPPLET
CFAUTHENTICATE CFIMPERSONATE CFSERVLET CFSERVLETPARAM""".split()

# Script words: (word, class, filters); class is the colour class.
JS_BOTH = "JavaScript,JScript"
SCRIPT = []
def words(text, cls, filters):
    for w in text.split():
        SCRIPT.append((w, cls, filters))

words("""break case catch continue default delete do else finally for function if in
instanceof new return switch this throw try typeof var void while with""", "Statements", JS_BOTH)
words("""class const debugger export extends import let yield async await of static super
get set""", "Statements", "JavaScript")
words("true false null undefined NaN Infinity", "Statements", JS_BOTH)
words("""Array Boolean Date Error Function Math Number Object RegExp String arguments
window document navigator location history screen frames parent top self opener
Image Option""", "Objects", JS_BOTH)
words("""JSON Promise Map Set WeakMap WeakSet Symbol Proxy Reflect BigInt Intl console
localStorage sessionStorage XMLHttpRequest fetch Element Node Event HTMLElement
CustomEvent URL""", "Objects", "JavaScript")
words("java Packages netscape sun Layer", "Objects", "JavaScript")
words("""ActiveXObject Enumerator VBArray Debug Global""", "Objects", "JScript")
words("""alert confirm prompt open close write writeln focus blur click submit reset
select eval escape unescape parseInt parseFloat isNaN isFinite setTimeout clearTimeout
setInterval clearInterval toString valueOf charAt charCodeAt fromCharCode indexOf
lastIndexOf substring substr split concat join reverse sort slice splice push pop
shift unshift toUpperCase toLowerCase getDate getDay getFullYear getHours getMinutes
getMonth getSeconds getTime getYear setDate setFullYear setHours setMinutes setMonth
setSeconds setTime setYear toGMTString toLocaleString abs ceil floor max min pow
random round sqrt sin cos tan exec test match replace search back forward go reload
scrollTo getElementById getElementsByTagName getElementsByName createElement
appendChild removeChild getAttribute setAttribute""", "Methods", JS_BOTH)
words("""addEventListener removeEventListener querySelector querySelectorAll
preventDefault stopPropagation forEach map filter reduce includes startsWith endsWith
trim padStart then stringify parse log assign keys values entries
requestAnimationFrame encodeURIComponent decodeURIComponent""", "Methods", "JavaScript")
words("taint untaint javaEnabled captureEvents releaseEvents routeEvent handleEvent moveAbove moveBelow load",
      "Methods", "JavaScript")
words("""GetObject ScriptEngine ScriptEngineMajorVersion ScriptEngineMinorVersion
ScriptEngineBuildVersion atEnd moveFirst moveNext item toArray getItem lbound ubound
dimensions writeln""", "Methods", "JScript")
words("""length value href src title name id checked defaultChecked defaultValue
selectedIndex options forms images links anchors cookie status defaultStatus
referrer lastModified bgColor fgColor linkColor alinkColor vlinkColor action method
target elements hash host hostname pathname port protocol search appName appVersion
appCodeName userAgent platform innerHTML innerText style className width height
complete text index selected disabled form type E LN2 LN10 LOG2E LOG10E PI SQRT1_2
SQRT2 prototype constructor""", "Properties", JS_BOTH)
words("""textContent classList dataset children firstChild lastChild parentNode
nextSibling previousSibling nodeName nodeType outerHTML scrollTop scrollLeft
clientWidth clientHeight offsetWidth offsetHeight""", "Properties", "JavaScript")
words("""layers visibility left zIndex clip pageX pageY above below siblingAbove
siblingBelow""", "Properties", "JavaScript")
words("all readyState parentElement sourceIndex", "Properties", "JScript")

FILTER_SETS = [
    ("HTML 2", H2), ("HTML 3.2", H32), ("HTML 4", H4), ("HTML 5", H5),
    ("Netscape Navigator 1", NN1), ("Netscape Navigator 2", NN2),
    ("Netscape Navigator 3", NN3), ("Netscape Navigator 4", NN4),
    ("IE 3", IE3), ("IE 4", IE4), ("WebTV", WEBTV),
]
ORDER = [f for f, _ in FILTER_SETS]


def esc(s):
    return s.replace("\\", "\\\\").replace("\t", "\\t").replace("\n", "\\n")


def main():
    lines = [
        "; Quillery tag catalogue: one entry a line, fields separated by tabs:",
        "; name, group, end tag (Y/N), filters (comma list), start text, end text, description.",
        "; Texts take \\t, \\n and \\\\ for a tab, a line end and a backslash.",
        "; Made by scripts/make_tag_catalogue.py; Tools > Edit Tags rewrites it.",
    ]
    tags = {}
    for filt, names in FILTER_SETS:
        for n in names:
            tags.setdefault(n, []).append(filt)
    for name in sorted(tags):
        group, desc = DESC[name]
        end = name not in EMPTY
        filters = [f for f in ORDER if f in tags[name]]
        lines.append("\t".join([name, "HTML: " + group, "Y" if end else "N", ",".join(filters),
                                "<%s>" % name, "</%s>" % name if end else "", esc(desc)]))
    for name in sorted(CF_CONTAINERS + CF_EMPTY):
        end = name in CF_CONTAINERS
        lines.append("\t".join([name, "Cold Fusion", "Y" if end else "N", "Cold Fusion",
                                "<%s>" % name, "</%s>" % name if end else "",
                                "CFML tag " + name.lower()]))
    merged = {}
    for w, cls, filters in SCRIPT:
        key = (w, cls)
        have = merged.setdefault(key, [])
        for f in filters.split(","):
            if f not in have:
                have.append(f)
    for (w, cls), filters in sorted(merged.items(), key=lambda kv: (kv[0][1], kv[0][0].lower())):
        filters = [f for f in ("JavaScript", "JScript") if f in filters]
        lines.append("\t".join([w, "Script " + cls, "N", ",".join(filters), w, "",
                                "Script " + cls.lower()[:-1] if cls != "Properties" else "Script property"]))
    with open("data/tags.inf", "w", newline="") as f:
        f.write("\r\n".join(lines) + "\r\n")


if __name__ == "__main__":
    main()
