#include "generators/ui/frmCSSSimple.h"

#include "core/ui/DialogFlags.h"
#include "generators/StyleLibrary.h"
#include "generators/StyleText.h"
#include "generators/ui/frmCSSEditor.h"
#include "platform/Prompts.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::generators::ui {

frmCSSSimple::frmCSSSimple(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmCSSSimple"));
    setWindowTitle(QStringLiteral("Define Styles"));
    auto *layout = new QHBoxLayout(this);
    auto *left = new QVBoxLayout;
    m_lstStyles = new QListWidget(this);
    m_lstStyles->setObjectName(QStringLiteral("lstStyles"));
    left->addWidget(m_lstStyles, 1);
    m_lblDescription = new QLabel(this);
    m_lblDescription->setObjectName(QStringLiteral("lblDescription"));
    m_lblDescription->setWordWrap(true);
    m_lblDescription->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_lblDescription->setMinimumHeight(m_lblDescription->fontMetrics().height() * 6);
    m_lblDescription->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    left->addWidget(m_lblDescription);
    layout->addLayout(left, 1);

    auto *buttons = new QDialogButtonBox(Qt::Vertical, this);
    const char *captions[4] = {"&New...", "&Edit...", "&Remove", "OK"};
    QPushButton *b[4];
    for (int i = 0; i < 4; ++i) {
        b[i] = buttons->addButton(QString::fromLatin1(captions[i]),
                                  i == 3 ? QDialogButtonBox::AcceptRole : QDialogButtonBox::ActionRole);
        b[i]->setObjectName(QStringLiteral("cmdOptions(%1)").arg(i));
    }
    connect(b[0], &QPushButton::clicked, this, &frmCSSSimple::newStyle);
    connect(b[1], &QPushButton::clicked, this, &frmCSSSimple::editStyle);
    connect(b[2], &QPushButton::clicked, this, &frmCSSSimple::removeStyle);
    connect(b[3], &QPushButton::clicked, this, &frmCSSSimple::accept);
    layout->addWidget(buttons);

    connect(m_lstStyles, &QListWidget::currentRowChanged, this, &frmCSSSimple::PopulateFields);
    connect(m_lstStyles, &QListWidget::itemDoubleClicked, this, &frmCSSSimple::editStyle);
    refresh();
    resize(560, 380);
}

void frmCSSSimple::refresh(const QString &select)
{
    StyleLibrary &library = StyleLibrary::instance();
    library.LoadStyleList();
    m_lstStyles->clear();
    m_lstStyles->addItems(library.StyleNames());
    const int at = library.indexOf(select);
    m_lstStyles->setCurrentRow(at >= 0 ? at : (m_lstStyles->count() ? 0 : -1));
    PopulateFields();
}

QString frmCSSSimple::selectedStyle() const
{
    const QListWidgetItem *item = m_lstStyles->currentItem();
    return item ? item->text() : QString();
}

void frmCSSSimple::PopulateFields()
{
    const QString name = selectedStyle();
    if (name.isEmpty()) {
        m_lblDescription->clear();
        return;
    }
    StyleRecord r;
    if (StyleLibrary::instance().ReadStyleFile(name, r) == StyleFileStatus::Damaged) {
        m_lblDescription->setText(QStringLiteral("The file of this style cannot be read: it is damaged or not a "
                                                 "style file. Remove it, or save the style again."));
        return;
    }
    QString selector = isSet(r.HTMLTag) ? r.HTMLTag : QString();
    if (isSet(r.ClassName))
        selector += QLatin1Char('.') + r.ClassName;
    m_lblDescription->setText((isSet(r.Description) ? r.Description + QStringLiteral("\n\n") : QString())
                              + QStringLiteral("Selector: ") + selector);
}

void frmCSSSimple::newStyle()
{
    frmCSSEditor editor(this);
    if (editor.exec() == QDialog::Accepted)
        refresh(editor.record().StyleName);
}

void frmCSSSimple::editStyle()
{
    const QString name = selectedStyle();
    if (name.isEmpty())
        return;
    frmCSSEditor editor(this);
    editor.Initialize(StyleFromList(name));
    if (editor.exec() == QDialog::Accepted)
        refresh(editor.record().StyleName);
}

void frmCSSSimple::removeStyle()
{
    const QString name = selectedStyle();
    if (name.isEmpty())
        return;
    if (platform::MsgBox(QStringLiteral("Remove style ") + name + QLatin1Char('?'), platform::Buttons::YesNo,
                         platform::Icon::Question, QStringLiteral("Remove Style"))
        != platform::Answer::Yes)
        return;
    StyleLibrary::instance().DeleteStyle(name);
    refresh();
}

} // namespace qly::generators::ui
