#include "texttools/SpellCheck.h"

#include "core/FileIo.h"
#include "core/Feedback.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QFileInfo>

namespace qly::texttools {

SpellSession::SpellSession(QString text, std::unique_ptr<SpellChecker> checker, CustomDictionary *custom)
    : m_text(std::move(text)), m_checker(std::move(checker)), m_custom(custom)
{
}

bool SpellSession::next()
{
    for (;;) {
        const SpellWord w = NextSpellWord(m_text, m_from);
        if (!w.found()) {
            m_current = {};
            return false;
        }
        m_current = w;
        const QString found = word();
        if (const auto change = m_changeAll.constFind(found); change != m_changeAll.constEnd()) {
            replaceCurrent(change.value());
            continue;
        }
        m_from = w.position + w.length;
        if (!m_ignored.contains(found) && !m_checker->check(found)) {
            m_from = w.position;
            return true;
        }
    }
}

QString SpellSession::context() const
{
    if (!m_current.found())
        return {};
    const qsizetype start = m_text.lastIndexOf(u'\n', m_current.position) + 1;
    qsizetype end = m_text.indexOf(u'\n', m_current.position);
    if (end < 0)
        end = m_text.size();
    QString line;
    bool inTag = false;
    for (const QChar c : QStringView(m_text).mid(start, end - start)) {
        if (c == u'<')
            inTag = true;
        else if (c == u'>')
            inTag = false;
        else if (!inTag)
            line += c;
    }
    return line.simplified();
}

void SpellSession::replaceCurrent(const QString &replacement)
{
    m_shift += replacement.size() - m_current.length;
    m_text.replace(m_current.position, m_current.length, replacement);
    m_from = m_current.position + replacement.size();
    m_changed = true;
}

void SpellSession::act(SpellAction action, const QString &replacement)
{
    if (!m_current.found())
        return;
    const QString current = word();
    switch (action) {
    case SpellAction::IgnoreAll:
        m_ignored.insert(current);
        [[fallthrough]];
    case SpellAction::Ignore:
    case SpellAction::Cancel:
        m_from = m_current.position + m_current.length;
        break;
    case SpellAction::ChangeAll:
        m_changeAll.insert(current, replacement);
        [[fallthrough]];
    case SpellAction::Change:
        replaceCurrent(replacement);
        break;
    case SpellAction::Add:
        m_checker->accept(current);
        if (m_custom && !m_custom->add(current))
            core::ErrorBox(QStringLiteral("Couldn't write the custom dictionary ") + m_custom->path());
        m_from = m_current.position + m_current.length;
        break;
    }
}

void SpellSession::replaceChecker(std::unique_ptr<SpellChecker> checker)
{
    m_checker = std::move(checker);
    if (m_custom) {
        for (const QString &w : m_custom->words())
            m_checker->accept(w);
    }
}

std::unique_ptr<SpellChecker> SetupDictionaries(std::unique_ptr<CustomDictionary> &custom)
{
    const DictionaryFiles files = MainDictionary();
    QString error;
    std::unique_ptr<SpellChecker> checker = SpellChecker::open(files, error);
    if (!checker) {
        platform::MsgBox(error, platform::Buttons::Ok, platform::Icon::Exclamation,
                         QStringLiteral("Default Dictionary Not Found"));
        return nullptr;
    }
    const QString path = CustomDictionaryPath();
    // A list the user named that is not there is made on request; the
    // default list in the user's data folder is made with its first word.
    const bool named =
        !core::ReadSetting(QStringLiteral("General"), QStringLiteral("Custom Dictionary")).trimmed().isEmpty();
    if (named && !QFileInfo::exists(path)
        && platform::MsgBox(QStringLiteral("Custom dictionary ") + path
                                + QStringLiteral(" does not exist.  Create it now ?"),
                            platform::Buttons::YesNo, platform::Icon::Question,
                            QStringLiteral("Create New Custom Dictionary ?"))
               == platform::Answer::Yes) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        if (!core::writeFileAtomically(path, QByteArray()).ok())
            core::ErrorBox(QStringLiteral("Couldn't create the custom dictionary ") + path);
    }
    custom = std::make_unique<CustomDictionary>(path);
    for (const QString &w : custom->words())
        checker->accept(w);
    return checker;
}

void CheckSpelling(const std::function<SpellAction(SpellSession &session, QString &replacement)> &ask)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    std::unique_ptr<CustomDictionary> custom;
    std::unique_ptr<SpellChecker> checker = SetupDictionaries(custom);
    if (!checker)
        return;
    platform::HTMLEdit &edit = doc->txtDoc();
    const int selStart = edit.SelStart();
    const int selLength = edit.SelLength();
    SpellSession session(edit.Text(), std::move(checker), custom.get());
    bool cancelled = false;
    while (session.next()) {
        // The word in question is selected in the document while it is asked.
        edit.setSelStart(int(session.originalPosition()));
        edit.setSelLength(int(session.word().size()));
        QString replacement;
        const SpellAction action = ask(session, replacement);
        if (action == SpellAction::Cancel) {
            cancelled = true;
            break;
        }
        session.act(action, replacement);
    }
    const bool apply = session.changed()
                       && !(cancelled
                            && platform::MsgBox(QStringLiteral("Do you still want to apply the changes you made ?"),
                                                platform::Buttons::YesNo, platform::Icon::Question)
                                   == platform::Answer::No);
    if (apply) {
        edit.PrepareUndo();
        edit.setText(session.text());
        edit.EndPUndo();
        edit.setDirty(true);
        edit.setSelStart(selStart);
    } else {
        edit.setSelStart(selStart);
        edit.setSelLength(selLength);
        if (session.changed())
            return;
    }
    if (!cancelled)
        core::ShowStatus(QStringLiteral("Spell check complete."));
}

} // namespace qly::texttools
