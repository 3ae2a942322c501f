#include "generators/ui/StyleComboBinder.h"

#include "core/Settings.h"
#include "core/ui/Shell.h"
#include "documents/Document.h"
#include "documents/TextSearch.h"
#include "documents/Workspace.h"
#include "documents/ui/DocumentWindow.h"
#include "generators/DocumentStyles.h"
#include "generators/StyleLibrary.h"
#include "platform/HTMLEdit.h"

#include <QComboBox>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSignalBlocker>

namespace qly::generators::ui {

namespace {
QPointer<StyleComboBinder> g_binder;
constexpr int kWholeTextLimit = 1 << 20;
}

StyleComboBinder::StyleComboBinder(QMainWindow *window)
    : QObject(window), m_window(window)
{
}

StyleComboBinder *StyleComboBinder::instance()
{
    return g_binder.data();
}

void StyleComboBinder::install(core::ui::Shell &shell)
{
    if (g_binder || !shell.mainWindow())
        return;
    g_binder = new StyleComboBinder(shell.mainWindow());
    if (QMdiArea *area = shell.mdiArea()) {
        connect(area, &QMdiArea::subWindowActivated, g_binder.data(), [](QMdiSubWindow *window) {
            if (auto *doc = window ? qobject_cast<documents::ui::DocumentWindow *>(window->widget()) : nullptr) {
                if (!doc->property("qlyStyleWatched").toBool()) {
                    doc->setProperty("qlyStyleWatched", true);
                    connect(doc, &documents::ui::DocumentWindow::positionChanged, g_binder.data(),
                            [] { g_binder->caretStopped(); });
                }
            }
            g_binder->refresh();
        });
    }
}

QComboBox *StyleComboBinder::combo() const
{
    return m_window->findChild<QComboBox *>(QStringLiteral("cmbApplyStyle"));
}

void StyleComboBinder::refresh()
{
    QComboBox *box = combo();
    if (!box)
        return;
    if (!m_connected) {
        m_connected = true;
        connect(box, &QComboBox::activated, this, &StyleComboBinder::apply);
    }
    documents::Document *doc = documents::Workspace::CurrentDocument();
    const QSignalBlocker block(box);
    box->clear();
    box->addItem(QStringLiteral("[none]"));
    m_entries.clear();
    if (doc) {
        const QString text = doc->txtDoc().Text();
        const bool specific = core::ReadSettingFlag(QStringLiteral("Styles"), QStringLiteral("Show Document Specific"));
        m_entries = StyleComboEntries(ReadDocumentStyles(text), StyleLibrary::instance(), specific,
                                      doc->txtDoc().SelText());
        for (const StyleChoice &entry : std::as_const(m_entries))
            box->addItem(entry.name, entry.cls);
    }
    box->setEnabled(doc != nullptr);
    m_filledFor = doc;
    m_filledLength = doc ? doc->txtDoc().GetTextLength() : -1;
    caretStopped();
}

void StyleComboBinder::caretStopped()
{
    QComboBox *box = combo();
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!box || !doc)
        return;
    platform::HTMLEdit &edit = doc->txtDoc();
    // The page changed since the list was made (loaded, typed into): read
    // its styles again, on pages small enough to read at every caret stop.
    const int length = edit.GetTextLength();
    if (doc != m_filledFor || (length != m_filledLength && length < kWholeTextLimit)) {
        refresh();
        return;
    }
    QString selection = edit.SelText();
    // With nothing selected, the tag the caret stands in (on pages small
    // enough to read whole at every caret stop).
    if (selection.isEmpty() && edit.GetTextLength() < kWholeTextLimit) {
        const QString text = edit.Text();
        int start = 0, end = 0;
        if (documents::enclosingTag(text, edit.SelStart(), start, end))
            selection = text.mid(start, end - start);
    }
    const bool oneLine = !selection.contains(QLatin1Char('\n')) && !selection.contains(QLatin1Char('\r'));
    const QSignalBlocker block(box);
    box->setCurrentIndex(oneLine ? ClassRow(m_entries, selection) : 0);
}

void StyleComboBinder::apply(int row)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc || row < 0 || row > m_entries.size())
        return;
    ApplyStyleClass(doc->txtDoc(), row == 0 ? QString() : m_entries.at(row - 1).cls);
    doc->txtDoc().SetFocus();
}

} // namespace qly::generators::ui
