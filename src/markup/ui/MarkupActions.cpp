#include "markup/ui/MarkupActions.h"

#include "markup/LinkCommands.h"
#include "markup/ui/frmDuplicate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>

namespace qly::markup::ui {

namespace {

// Notes an Escape key pressed anywhere in the program while it lives.
class EscapeWatch final : public QObject
{
public:
    EscapeWatch() { QCoreApplication::instance()->installEventFilter(this); }
    ~EscapeWatch() override { QCoreApplication::instance()->removeEventFilter(this); }
    bool pressed() const { return m_pressed; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            m_pressed = true;
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_pressed = false;
};

} // namespace

void RemoveMarkupWithEscape(const QString &mode)
{
    EscapeWatch escape;
    RemoveMarkup(mode, [&escape] { return escape.pressed(); });
}

void FindDuplicateLinks(QWidget *parent)
{
    ToolsFindDup_Click([parent](const QString &tag) { return frmDuplicate::ask(tag, parent); });
}

} // namespace qly::markup::ui
