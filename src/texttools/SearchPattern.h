#pragma once

#include <QRegularExpression>
#include <QString>

namespace qly::texttools {

// One hit: where it starts and how long it is.
struct Hit {
    int position = -1;
    int length = 0;
    bool found() const { return position >= 0; }
};

// What the user searches for: a literal text (the default) or a regular
// expression, with or without regard to case, whole words only or not.
class SearchPattern
{
public:
    SearchPattern(const QString &text, bool matchCase, bool wholeWord, bool regex);

    bool isEmpty() const { return m_text.isEmpty(); }
    bool isValid() const { return !m_regex || m_re.isValid(); }
    QString errorText() const { return m_re.errorString(); }
    bool isRegex() const { return m_regex; }

    // The first hit starting in [from, end) that ends by `end`, or with
    // `backwards` the last one starting before `before` (and at or after
    // `from`). `end` < 0 stands for the end of the text.
    Hit next(const QString &text, int from, int end) const;
    Hit previous(const QString &text, int from, int before) const;

    // The text that replaces `hit`: `replacement` as it stands, or for a
    // regular expression with \0 to \9 standing for the captured groups.
    QString replacementFor(const QString &text, const Hit &hit, const QString &replacement) const;

private:
    bool wordBounded(const QString &text, int position, int length) const;

    QString m_text;
    Qt::CaseSensitivity m_cs;
    bool m_wholeWord;
    bool m_regex;
    QRegularExpression m_re;
};

// The two place-holders that stand for characters a combo box cannot take:
// "[End Of Line Character]" becomes the line end that `documentText` uses
// (CR LF, else LF, else CR; CR LF when it has none) and "[Tab Character]" a tab.
QString ExpandSearchText(const QString &text, const QString &documentText);

} // namespace qly::texttools
