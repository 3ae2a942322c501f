#include "platform/ui/QtPrompts.h"

#include "core/ui/DialogFlags.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace qly::platform::ui {

QStringList toQtFilters(const QString &filter)
{
    QStringList out;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList masks = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        // "*.*" meant every file where it was written; here names need no point.
        for (QString &mask : masks) {
            if (mask.trimmed() == QLatin1String("*.*"))
                mask = QStringLiteral("*");
        }
        QString label = parts[i];
        // A label that already shows its masks keeps them once.
        const qsizetype paren = label.indexOf(u'(');
        if (paren >= 0)
            label = label.left(paren).trimmed();
        out << label + QStringLiteral(" (") + masks.join(u' ') + u')';
    }
    return out;
}

namespace {

QMessageBox::Icon toIcon(Icon icon)
{
    switch (icon) {
    case Icon::Information: return QMessageBox::Information;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Critical: return QMessageBox::Critical;
    case Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

void prepare(QFileDialog &dialog, const FileRequest &request)
{
    dialog.setWindowTitle(request.title);
    dialog.setDirectory(request.directory);
    const QStringList filters = toQtFilters(request.filter);
    dialog.setNameFilters(filters);
    if (request.filterIndex >= 1 && request.filterIndex <= filters.size())
        dialog.selectNameFilter(filters.at(request.filterIndex - 1));
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    dialog.setDefaultSuffix(request.defaultSuffix);
}

FileAnswer answerOf(QFileDialog &dialog)
{
    FileAnswer answer;
    if (dialog.exec() != QDialog::Accepted)
        return answer;
    answer.files = dialog.selectedFiles();
    answer.filterIndex = int(dialog.nameFilters().indexOf(dialog.selectedNameFilter())) + 1;
    return answer;
}

// The start-up window stays on top of everything; a box under it could be
// neither read nor answered, and start-up waits for the answer.
void closeSplash()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (w->isVisible() && w->objectName() == QLatin1String("frmSplash"))
            w->close();
    }
}

// What every prompt does first: the splash goes, the wait cursor pauses.
class CursorPause
{
public:
    explicit CursorPause(bool busy) : m_busy(busy)
    {
        closeSplash();
        if (m_busy)
            QApplication::restoreOverrideCursor();
    }
    ~CursorPause()
    {
        if (m_busy)
            QApplication::setOverrideCursor(Qt::WaitCursor);
    }

private:
    bool m_busy;
};

} // namespace

Answer QtPrompts::message(const QString &title, const QString &text, Buttons buttons, Icon icon)
{
    CursorPause pause(m_busy);
    QMessageBox box(toIcon(icon), title, text, QMessageBox::NoButton, m_parent, core::ui::kDialogFlags);
    switch (buttons) {
    case Buttons::Ok: box.setStandardButtons(QMessageBox::Ok); break;
    case Buttons::OkCancel: box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
    case Buttons::YesNo: box.setStandardButtons(QMessageBox::Yes | QMessageBox::No); break;
    case Buttons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    switch (box.exec()) {
    case QMessageBox::Ok: return Answer::Ok;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return Answer::Cancel;
    }
}

FileAnswer QtPrompts::openFile(const FileRequest &request)
{
    CursorPause pause(m_busy);
    QFileDialog dialog(m_parent);
    prepare(dialog, request);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(request.multiple ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    return answerOf(dialog);
}

FileAnswer QtPrompts::saveFile(const FileRequest &request)
{
    CursorPause pause(m_busy);
    QFileDialog dialog(m_parent);
    prepare(dialog, request);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.promptOverwrite);
    return answerOf(dialog);
}

QString QtPrompts::chooseDirectory(const QString &title, const QString &start)
{
    CursorPause pause(m_busy);
    return QFileDialog::getExistingDirectory(m_parent, title, start);
}

QtPrompts::InputBox &QtPrompts::inputBox()
{
    static InputBox box;
    return box;
}

std::optional<QString> QtPrompts::inputText(const QString &title, const QString &prompt, const QString &initial)
{
    CursorPause pause(m_busy);
    if (inputBox())
        return inputBox()(m_parent, title, prompt, initial, false);
    bool ok = false;
    const QString text = QInputDialog::getText(m_parent, title, prompt, QLineEdit::Normal, initial, &ok);
    if (!ok)
        return std::nullopt;
    return text;
}

std::optional<QString> QtPrompts::inputPassword(const QString &title, const QString &prompt)
{
    CursorPause pause(m_busy);
    if (inputBox())
        return inputBox()(m_parent, title, prompt, QString(), true);
    bool ok = false;
    const QString text = QInputDialog::getText(m_parent, title, prompt, QLineEdit::Password, QString(), &ok);
    if (!ok)
        return std::nullopt;
    return text;
}

void QtPrompts::setBusy(bool busy)
{
    if (busy == m_busy)
        return;
    m_busy = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

} // namespace qly::platform::ui
