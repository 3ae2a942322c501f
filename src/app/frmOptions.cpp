#include "app/frmOptions.h"

#include "core/ui/DialogFlags.h"
#include "core/OptionsHooks.h"
#include "documents/Workspace.h"
#include "app/Main.h"
#include "app/MainWindow.h"
#include "documents/Document.h"
#include "documents/ui/EditColors.h"
#include "platform/HTMLEdit.h"


#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include "core/ui/Help.h"
#include "publish/ui/AliasEditor.h"
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::app {

using namespace core;

namespace {

// The colour an unset slot has in the edit buffer.
QColor bufferDefaultColour(int slot)
{
    return documents::ui::defaultSlotColor(slot);
}

QColor storedColour(int v)
{
    return QColor(v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF);
}

int toStored(const QColor &c)
{
    return c.red() + 256 * c.green() + 65536 * c.blue();
}

} // namespace

frmOptions::frmOptions(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(QStringLiteral("Quillery Options"));
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("tbOptions"));
    m_tabs->setUsesScrollButtons(false);
    QWidget *pages[kOptionsTabCount] = {buildGeneral(), buildEditing(), buildColoring(), buildDisplay(),
                                        buildDirectories(), buildSpelling(), buildSaveStart(), buildBrowsers()};
    for (int i = 0; i < kOptionsTabCount; ++i)
        m_tabs->addTab(pages[i], optionsTabCaption(OptionsTab(i)));

    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    box->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOptions(0)"));
    box->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdOptions(1)"));
    core::ui::addHelpButton(box, this, QStringLiteral("cmdOptions(2)"));
    connect(box, &QDialogButtonBox::accepted, this, &frmOptions::accept);
    connect(box, &QDialogButtonBox::rejected, this, &frmOptions::reject);

    auto *v = new QVBoxLayout(this);
    v->addWidget(m_tabs);
    v->addWidget(box);

    m_model.load();
    showModel();
}

void frmOptions::showTab(OptionsTab tab)
{
    m_tabs->setCurrentIndex(int(tab));
}

void frmOptions::showModel()
{
    for (int i = 0; i < kOptionCheckCount; ++i) {
        if (QCheckBox *box = m_checks[size_t(i)])
            box->setChecked(m_model.check(OptionCheck(i)));
    }
    m_checks[size_t(OptionCheck::ForceDefaultExt)]->setVisible(m_model.forceExtensionVisible());
    m_colourFrame->setEnabled(m_model.check(OptionCheck::ColorHTML));
    m_aliases->setVisible(m_model.check(OptionCheck::UseAliases));

    m_anchor->setCurrentText(m_model.anchor);
    m_bigLetter->setCurrentText(m_model.bigLetterSize);
    m_fontName->setCurrentText(m_model.fontName);
    m_fontSize->setCurrentText(m_model.fontSize);
    m_docExt->setCurrentText(m_model.documentExtension);
    if (m_pubExt->findText(m_model.publishExtension, Qt::MatchFixedString) < 0)
        m_pubExt->addItem(m_model.publishExtension);
    m_pubExt->setCurrentIndex(m_pubExt->findText(m_model.publishExtension, Qt::MatchFixedString));
    m_autoSave->setText(m_model.autoSaveMinutes);

    const QString seconds = m_model.scoutSeconds;
    m_scoutCheck->setChecked(m_model.scoutEnabled());
    m_scout->setEnabled(m_model.scoutEnabled());
    m_scout->setText(seconds);
    m_model.scoutSeconds = seconds;

    for (int i = 0; i < kLocationCount; ++i)
        m_files[size_t(i)]->setText(m_model.locations[size_t(i)]);
    for (int i = 0; i < 2; ++i)
        m_dictionaries[size_t(i)]->setText(m_model.dictionaries[size_t(i)]);
    for (int i = 0; i < kColourCount; ++i)
        showColour(i);
    showBrowsers();
}

void frmOptions::showColour(int index)
{
    const int v = m_model.colours[size_t(index)];
    const QColor c = v < 0 ? bufferDefaultColour(colourBindings()[size_t(index)].slot) : storedColour(v);
    QPixmap swatch(32, 16);
    swatch.fill(c);
    QPainter(&swatch).drawRect(0, 0, 31, 15);
    m_colours[size_t(index)]->setIcon(swatch);
    m_colours[size_t(index)]->setToolTip(c.name());
}

void frmOptions::pickColour(int index)
{
    const int v = m_model.colours[size_t(index)];
    const QColor start = v < 0 ? bufferDefaultColour(colourBindings()[size_t(index)].slot) : storedColour(v);
    const QColor chosen = QColorDialog::getColor(start, this, QString(colourBindings()[size_t(index)].caption));
    if (!chosen.isValid())
        return;
    m_model.colours[size_t(index)] = toStored(chosen);
    showColour(index);
}

void frmOptions::showBrowsers()
{
    m_browsers->clear();
    m_browsers->addItems(m_model.browsers());
    m_browsers->setCurrentRow(-1);
    m_deleteBrowser->setEnabled(false);
}

void frmOptions::accept()
{
    // The aliases go to their own file first: when that fails, the user has
    // been told and the dialog stays with nothing committed.
    if (!m_aliases->save())
        return;
    m_model.commit();
    QDialog::accept();
}

void frmOptions::enterMovesOn(QWidget *widget)
{
    widget->installEventFilter(this);
    if (auto *c = qobject_cast<QComboBox *>(widget); c && c->lineEdit())
        c->lineEdit()->installEventFilter(this);
}

bool frmOptions::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            focusNextChild();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void ShowOptions(frmMain &main, OptionsTab tab)
{
    frmOptions dialog(&main);
    dialog.showTab(tab);
    dialog.adjustSize();
    dialog.move(main.geometry().center() - dialog.rect().center());
    dialog.exec();
}

} // namespace qly::app
