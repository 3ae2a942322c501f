#pragma once

#include "texttools/SpellDictionary.h"
#include "texttools/SpellWords.h"

#include <QHash>
#include <QSet>
#include <functional>
#include <memory>

namespace qly::texttools {

enum class SpellAction { Ignore, IgnoreAll, Change, ChangeAll, Add, Cancel };

// One run over a copy of a page's text: finds the words the dictionary
// does not know, one at a time, and applies the user's answers to the copy.
class SpellSession
{
public:
    SpellSession(QString text, std::unique_ptr<SpellChecker> checker, CustomDictionary *custom);

    // Moves to the next word to ask about, applying "Change All" answers on
    // the way; false at the end of the text.
    bool next();
    QString word() const { return m_text.mid(m_current.position, m_current.length); }
    qsizetype position() const { return m_current.position; }
    // Where the word stands in the text the session started from: the
    // document, which changes only at the end.
    qsizetype originalPosition() const { return m_current.position - m_shift; }
    QStringList suggestions() const { return m_checker->suggest(word()); }
    // The line the word stands in, without its markup, for the dialog.
    QString context() const;

    // The answer for the current word. Change and Change All put
    // `replacement` in its place; Add also writes the user's word list.
    void act(SpellAction action, const QString &replacement = {});
    // Another main dictionary from here on; the current word is asked about
    // again only when the new one does not know it either (next() decides).
    void replaceChecker(std::unique_ptr<SpellChecker> checker);
    const SpellChecker &checker() const { return *m_checker; }

    const QString &text() const { return m_text; }
    bool changed() const { return m_changed; }

private:
    void replaceCurrent(const QString &replacement);

    QString m_text;
    std::unique_ptr<SpellChecker> m_checker;
    CustomDictionary *m_custom;
    SpellWord m_current;
    qsizetype m_from = 0;
    qsizetype m_shift = 0;   // how much longer the copy is before the current word
    QSet<QString> m_ignored;
    QHash<QString, QString> m_changeAll;
    bool m_changed = false;
};

// Loads the main dictionary the settings name and the user's word list
// (asking to make the list when a configured one is missing). A missing or
// damaged main dictionary is told ("Default Dictionary Not Found") and gives null.
std::unique_ptr<SpellChecker> SetupDictionaries(std::unique_ptr<CustomDictionary> &custom);

// Tools > Spell Check on the current document: every unknown word of the
// page's text goes to `ask`, which answers for it. The corrections change
// the document at the end, as one undo step; after Cancel the user is asked
// whether to keep the corrections made so far.
void CheckSpelling(const std::function<SpellAction(SpellSession &session, QString &replacement)> &ask);

} // namespace qly::texttools
