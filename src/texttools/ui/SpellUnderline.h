#pragma once

#include "texttools/SpellDictionary.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>

class QsciScintilla;

namespace qly::core::ui {
class Shell;
}

namespace qly::texttools::ui {

// Underlines the unknown words of the page's text in the active document
// with a red squiggle, half a second after the last change. Off when
// [General] "Spell Check As You Type" is "no", when no dictionary loads,
// and for texts over a megabyte.
class SpellUnderline final : public QObject
{
    Q_OBJECT
public:
    static void install(core::ui::Shell &shell);
    // Drops the remembered answers (after words were added to the list).
    static void forget();

private:
    explicit SpellUnderline(QObject *parent);
    void watch(QsciScintilla *view);
    void underline(QsciScintilla *view);
    bool known(const QString &word);

    std::unique_ptr<SpellChecker> m_checker;
    QString m_checkerFor;
    QHash<QString, bool> m_known;
    QTimer m_timer;
    QPointer<QsciScintilla> m_pending;
};

} // namespace qly::texttools::ui
