#pragma once

namespace qly::publish {

// Which passes run, from the [Publishing] keys: "Convert CRLF", "Strip CRLF",
// "Publish as UNIX Text", "Translate Extended Characters", "Use Aliases",
// "Use UNIX Slashes".
struct PassSettings {
    bool convertLineEnds = false;
    bool stripLineEnds = false;
    bool unixText = false;
    bool translateCharacters = false;
    bool useAliases = false;
    bool unixSlashes = false;
};

PassSettings readPassSettings();

// What the passes do to a text; the text may be held as characters or as
// the bytes of its file.
class PassTarget
{
public:
    virtual ~PassTarget() = default;
    // Every CR LF replaced by `with`, in one pass from the left.
    virtual void replaceLineEnds(const char *with) = 0;
    virtual void translateCharacters() = 0;
    virtual void applyAliases() = 0;
    virtual void convertSlashesToUnix() = 0;
};

// The passes that `settings` switch on, in their order, each with its status
// text; the character and alias tables are made ready for the pass that
// uses them.
void runPasses(const PassSettings &settings, PassTarget &target);

} // namespace qly::publish
