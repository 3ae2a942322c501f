#pragma once

#include "texttools/FileRewrite.h"

#include <QByteArray>
#include <QList>

namespace qly::texttools {

// Tells whether a file holds any of the find texts of a term grid, without
// regard to case, with the same answer as searching its decoded text with
// QString::contains(..., Qt::CaseInsensitive). Terms of plain ASCII are
// looked for in the file's bytes, which UTF-8 and Windows-1252 pages share
// for those characters, so most files are never decoded.
class TermMatcher
{
public:
    explicit TermMatcher(const QList<Term> &terms);

    bool matches(const QByteArray &bytes) const;

private:
    struct AsciiTerm {
        QByteArray lower;
        int rare = 0;          // the place of its rarest character in web pages
        bool foldsFromWider;   // holds a letter that a non-ASCII character folds to
    };
    static qsizetype find(const QByteArray &bytes, const AsciiTerm &term);

    QList<AsciiTerm> m_ascii;
    QList<QString> m_wide;   // terms with other characters: searched in the decoded text
};

} // namespace qly::texttools
