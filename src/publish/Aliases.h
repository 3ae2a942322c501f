#pragma once

#include <QString>
#include <vector>

namespace qly::publish {

// One line of aliases.inf: the term, its replacement (both may hold line
// breaks, stored as "NL_"), and the "match case" and "whole word" fields,
// each "yes" (any case) to be on.
struct Alias {
    QString term;
    QString replacement;
    QString matchCase;
    QString wholeWord;
    bool matchesCase() const;
    bool wholeWordOnly() const;
};

// The field separator of aliases.inf: the control character 2.
inline constexpr char16_t kAliasSeparator = 0x02;

// What ends a word for a whole-word alias; the text's ends count too.
inline constexpr char kWordDelimiters[] = "!.,?;:()[]{} \r\n\t";

// The table of aliases.inf, in file order; empty when it has no alias.
std::vector<Alias> &Aliases();

QString aliasFilePath();

// Parses one line; false for a line to skip. "NL_" becomes CR LF in the
// term and the replacement.
bool parseAliasLine(const QString &line, Alias &alias);
// The line for one alias, CR LF in term and replacement written as "NL_".
QString formatAliasLine(const Alias &alias);

// Fills the table from aliases.inf; a missing or empty file gives an empty
// table. False, after telling the user, when the file cannot be read.
bool LoadAliases();

// Replaces `term` by `replacement` in `text`, left to right. With
// `wholeWord`, a hit counts only between word delimiters (the text's ends
// count as such); with `confirm`, each hit is asked about (No skips it,
// Cancel ends the run). The search goes on behind the replacement's length
// from the hit, also after a skipped hit. Returns the number replaced.
int ReplaceInText(QString &text, const QString &term, const QString &replacement, bool matchCase,
                  bool wholeWord, bool confirm);

// The alias pass of publishing: every alias of the table in turn.
void ApplyAliases(QString &text);

// CR LF turned into LF in every term and replacement of the table.
void aliasesToUnixLineEnds();

} // namespace qly::publish
