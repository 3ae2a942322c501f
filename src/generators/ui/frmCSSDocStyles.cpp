#include "generators/ui/frmCSSDocStyles.h"

#include "core/ui/DialogFlags.h"
#include "generators/StyleLibrary.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::generators::ui {

frmCSSDocStyles::frmCSSDocStyles(platform::HTMLEdit &edit, QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags), m_edit(edit), m_doc(ReadDocumentStyles(edit.Text()))
{
    setObjectName(QStringLiteral("frmCSSDocStyles"));
    setWindowTitle(QStringLiteral("Document Styles"));
    m_ticked = m_doc.styles;
    auto *layout = new QVBoxLayout(this);
    m_chkStyleList = new QListWidget(this);
    m_chkStyleList->setObjectName(QStringLiteral("chkStyleList"));
    layout->addWidget(m_chkStyleList, 1);
    auto *filters = new QHBoxLayout;
    auto filter = [&](const char *name, const QString &caption, bool on) {
        auto *box = new QCheckBox(caption, this);
        box->setObjectName(QString::fromLatin1(name));
        box->setChecked(on);
        connect(box, &QCheckBox::toggled, this, &frmCSSDocStyles::fill);
        filters->addWidget(box);
        return box;
    };
    m_chkDocOnly = filter("chkDocOnly", QStringLiteral("&Document Specific"), false);
    m_chkGeneric = filter("chkGeneric", QStringLiteral("&Generic Styles"), true);
    m_chkHtml = filter("chkHtml", QStringLiteral("&HTML Styles"), true);
    m_chkAppStyle = filter("chkAppStyle", QStringLiteral("&Selected styles only"), false);
    layout->addLayout(filters);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmbOptions(0)"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmCSSDocStyles::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmCSSDocStyles::reject);
    layout->addWidget(buttons);
    connect(m_chkStyleList, &QListWidget::itemChanged, this, &frmCSSDocStyles::itemChanged);
    StyleLibrary::instance().LoadStyleList();
    fill();
    resize(520, 400);
}

void frmCSSDocStyles::fill()
{
    m_filling = true;
    m_chkStyleList->clear();
    const StyleLibrary &library = StyleLibrary::instance();
    const QString text = m_chkDocOnly->isChecked() ? m_edit.Text() : QString();
    for (int i = 0; i < library.StyleCount(); ++i) {
        const QString &name = library.StyleNames().at(i);
        const bool hasTag = isSet(library.StyleTags().at(i));
        const bool on = m_ticked.contains(name, Qt::CaseInsensitive);
        if ((hasTag && !m_chkHtml->isChecked()) || (!hasTag && !m_chkGeneric->isChecked()))
            continue;
        if (m_chkAppStyle->isChecked() && !on)
            continue;
        // Document specific: styles for tags the page uses, and generic ones.
        if (m_chkDocOnly->isChecked() && hasTag
            && !text.contains(QLatin1Char('<') + library.StyleTags().at(i), Qt::CaseInsensitive))
            continue;
        auto *item = new QListWidgetItem(name, m_chkStyleList);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    m_filling = false;
}

void frmCSSDocStyles::itemChanged(QListWidgetItem *item)
{
    if (m_filling)
        return;
    const QString name = item->text();
    const bool on = item->checkState() == Qt::Checked;
    if (on && !m_doc.imports.isEmpty() && !m_askedAboutImport) {
        m_askedAboutImport = true;
        if (platform::MsgBox(QStringLiteral("This document includes an imported style sheet. Any changes you make "
                                            "here will overide the style sheet specifications. Do you want to "
                                            "continue?"),
                             platform::Buttons::YesNo, platform::Icon::Question,
                             QStringLiteral("Imported Style Sheet Detected."))
            != platform::Answer::Yes) {
            m_askedAboutImport = false;
            m_filling = true;
            item->setCheckState(Qt::Unchecked);
            m_filling = false;
            return;
        }
    }
    m_ticked.removeAll(name);
    if (on)
        m_ticked << name;
}

bool frmCSSDocStyles::tick(const QString &name, bool on)
{
    const QList<QListWidgetItem *> items = m_chkStyleList->findItems(name, Qt::MatchFixedString);
    if (items.isEmpty())
        return false;
    items.first()->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    return true;
}

QStringList frmCSSDocStyles::ticked() const
{
    return m_ticked;
}

QStringList frmCSSDocStyles::listed() const
{
    QStringList names;
    for (int i = 0; i < m_chkStyleList->count(); ++i)
        names << m_chkStyleList->item(i)->text();
    return names;
}

void frmCSSDocStyles::accept()
{
    // The library's order; names the library lost stay, so nothing the page
    // named disappears unasked.
    DocumentStyles doc = m_doc;
    doc.styles.clear();
    for (const QString &name : StyleLibrary::instance().StyleNames()) {
        if (m_ticked.contains(name, Qt::CaseInsensitive))
            doc.styles << name;
    }
    for (const QString &name : m_ticked) {
        if (!doc.styles.contains(name, Qt::CaseInsensitive))
            doc.styles << name;
    }
    if (WriteDocumentStyles(m_edit, doc, StyleLibrary::instance()) == StyleWrite::Refused)
        return;
    QDialog::accept();
}

} // namespace qly::generators::ui
