#include "generators/ui/frmFormEditor.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"
#include "core/ui/HistoryCombo.h"
#include "generators/ui/FormElementDialogs.h"
#include "markup/TagPrimitives.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qly::generators::ui {

namespace {

QPushButton *button(QWidget *parent, const char *name, const QString &text)
{
    auto *b = new QPushButton(text, parent);
    b->setObjectName(QString::fromLatin1(name));
    return b;
}

} // namespace

frmFormEditor::frmFormEditor(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmFormEditor"));
    setWindowTitle(QStringLiteral("Form Editor"));
    auto *outer = new QVBoxLayout(this);
    auto *tabForm = new QTabWidget(this);
    tabForm->setObjectName(QStringLiteral("tabForm"));
    outer->addWidget(tabForm);

    auto *formPage = new QWidget(tabForm);
    buildDestination(formPage);
    tabForm->addTab(formPage, QStringLiteral("Form"));

    auto *elementsPage = new QWidget(tabForm);
    auto *elements = new QHBoxLayout(elementsPage);
    m_lstControls = new QTreeWidget(elementsPage);
    m_lstControls->setObjectName(QStringLiteral("lstControls"));
    m_lstControls->setHeaderLabels({QStringLiteral("Caption"), QStringLiteral("Name"), QStringLiteral("Misc")});
    m_lstControls->setRootIsDecorated(false);
    m_lstControls->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_lstControls->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    elements->addWidget(m_lstControls, 1);
    connect(m_lstControls, &QTreeWidget::itemDoubleClicked, this, [this] { editSelected(); });

    auto *adders = new QGroupBox(QStringLiteral("Add"), elementsPage);
    auto *grid = new QGridLayout(adders);
    const struct { const char *name; int kind; } kinds[] = {
        {"cmdCheck", FormElement::CheckBox}, {"cmdRadio", FormElement::Radio},
        {"cmdTextField", FormElement::TextField}, {"cmdTextArea", FormElement::TextArea},
        {"cmdHidden", FormElement::Hidden}, {"cmdPassword", FormElement::Password},
        {"cmdListBox", FormElement::ListBox}, {"cmdSubmit", FormElement::Submit},
        {"cmdReset", FormElement::Reset}, {"cmdImage", FormElement::Image}, {"cmdFile", FormElement::File}};
    int n = 0;
    for (const auto &k : kinds) {
        QPushButton *b = button(adders, k.name, FormElement::kindName(k.kind));
        const int kind = k.kind;
        connect(b, &QPushButton::clicked, this, [this, kind] { addKind(kind); });
        grid->addWidget(b, n / 2, n % 2);
        ++n;
    }
    auto *side = new QVBoxLayout;
    side->addWidget(adders);
    auto *change = new QGridLayout;
    QPushButton *edit = button(elementsPage, "cmdEdit", QStringLiteral("&Edit..."));
    QPushButton *del = button(elementsPage, "cmdDelete", QStringLiteral("&Delete"));
    QPushButton *up = button(elementsPage, "cmdUp", QStringLiteral("Move &Up"));
    QPushButton *down = button(elementsPage, "cmdDown", QStringLiteral("Move Do&wn"));
    int place = 0;
    for (QPushButton *b : {edit, del, up, down}) {
        change->addWidget(b, place / 2, place % 2);
        ++place;
    }
    side->addLayout(change);
    side->addStretch();
    elements->addLayout(side);
    connect(edit, &QPushButton::clicked, this, &frmFormEditor::editSelected);
    connect(del, &QPushButton::clicked, this, &frmFormEditor::deleteSelected);
    connect(up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(down, &QPushButton::clicked, this, [this] { move(1); });
    tabForm->addTab(elementsPage, QStringLiteral("Elements"));
    tabForm->setCurrentIndex(1);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOptions0"));
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cmdOptions1"));
    core::ui::addHelpButton(buttons, this, QStringLiteral("cmdOptions2"));
    outer->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmFormEditor::finish);
    connect(buttons, &QDialogButtonBox::rejected, this, [this] {
        m_tag = QStringLiteral("0");
        reject();
    });
    showType();
}

void frmFormEditor::buildDestination(QWidget *page)
{
    auto *layout = new QVBoxLayout(page);
    m_radType[0] = new QRadioButton(QStringLiteral("Send form data to URL"), page);
    m_radType[1] = new QRadioButton(QStringLiteral("Send form data to an e-mail address"), page);
    m_radType[0]->setChecked(true);
    layout->addWidget(m_radType[0]);
    layout->addWidget(m_radType[1]);

    m_urlRows = new QWidget(page);
    auto *urlForm = new QFormLayout(m_urlRows);
    m_cmbURL[0] = new QComboBox(m_urlRows);
    m_cmbURL[0]->setEditable(true);
    core::ui::FillHistoryCombo(m_cmbURL[0], QStringLiteral("Links"));
    m_cmbURL[0]->setCurrentText(QString());
    urlForm->addRow(QStringLiteral("URL:"), m_cmbURL[0]);
    auto *method = new QHBoxLayout;
    m_radMethod[0] = new QRadioButton(QStringLiteral("Get"), m_urlRows);
    m_radMethod[1] = new QRadioButton(QStringLiteral("Post"), m_urlRows);
    m_radMethod[0]->setChecked(true);
    method->addWidget(m_radMethod[0]);
    method->addWidget(m_radMethod[1]);
    method->addStretch();
    urlForm->addRow(QStringLiteral("Method:"), method);
    layout->addWidget(m_urlRows);

    m_mailRows = new QWidget(page);
    auto *mailForm = new QFormLayout(m_mailRows);
    m_cmbURL[1] = new QComboBox(m_mailRows);
    m_cmbURL[1]->setEditable(true);
    core::ui::FillHistoryCombo(m_cmbURL[1], QStringLiteral("E-Mail Addresses"));
    m_cmbURL[1]->setCurrentText(QString());
    mailForm->addRow(QStringLiteral("E-mail address:"), m_cmbURL[1]);
    m_cmbMIME = new QComboBox(m_mailRows);
    m_cmbMIME->setEditable(true);
    m_cmbMIME->addItems({QStringLiteral("text/plain"), QStringLiteral("application/x-www-form-urlencoded"),
                         QStringLiteral("multipart/form-data")});
    mailForm->addRow(QStringLiteral("MIME Content Type:"), m_cmbMIME);
    layout->addWidget(m_mailRows);
    layout->addStretch();

    const char *names[] = {"radType0", "radType1", "radMethod0", "radMethod1", "cmbURL0", "cmbURL1", "cmbMIME"};
    QWidget *widgets[] = {m_radType[0], m_radType[1], m_radMethod[0], m_radMethod[1], m_cmbURL[0], m_cmbURL[1], m_cmbMIME};
    for (int i = 0; i < 7; ++i)
        widgets[i]->setObjectName(QString::fromLatin1(names[i]));
    connect(m_radType[0], &QRadioButton::toggled, this, &frmFormEditor::showType);
}

void frmFormEditor::showType()
{
    const bool mail = m_radType[1]->isChecked();
    m_urlRows->setVisible(!mail);
    m_mailRows->setVisible(mail);
}

FormEditorModel frmFormEditor::model() const
{
    FormEditorModel m = m_model;
    m.toMail = m_radType[1]->isChecked();
    m.url = m_cmbURL[0]->currentText();
    m.mailAddress = m_cmbURL[1]->currentText();
    m.methodGet = m_radMethod[0]->isChecked();
    m.mimeType = m_cmbMIME->currentText();
    return m;
}

void frmFormEditor::addElement(const FormElement &element)
{
    m_model.elements << element;
    refreshList(int(m_model.elements.size()) - 1);
}

void frmFormEditor::addKind(int kind)
{
    FormElement element;
    if (NewFormElement(this, kind, element))
        addElement(element);
}

void frmFormEditor::editSelected()
{
    const int row = m_lstControls->indexOfTopLevelItem(m_lstControls->currentItem());
    if (row < 0 || row >= m_model.elements.size())
        return;
    FormElement element = m_model.elements.at(row);
    if (EditFormElement(this, element)) {
        m_model.elements[row] = element;
        refreshList(row);
    }
}

void frmFormEditor::deleteSelected()
{
    QList<int> rows;
    for (QTreeWidgetItem *item : m_lstControls->selectedItems())
        rows << m_lstControls->indexOfTopLevelItem(item);
    if (rows.isEmpty())
        return;
    m_model.remove(rows);
    refreshList(-1);
}

void frmFormEditor::move(int delta)
{
    const int row = m_lstControls->indexOfTopLevelItem(m_lstControls->currentItem());
    if (delta < 0 ? m_model.moveUp(row) : m_model.moveDown(row))
        refreshList(row + delta);
}

void frmFormEditor::refreshList(int select)
{
    m_lstControls->clear();
    for (const FormElement &e : std::as_const(m_model.elements)) {
        auto *item = new QTreeWidgetItem(m_lstControls, {e.caption, e.sub[0], e.misc()});
        item->setToolTip(0, FormElement::kindName(e.kind));
        item->setData(0, Qt::UserRole, e.kind);
    }
    for (int c = 0; c < 3; ++c)
        m_lstControls->resizeColumnToContents(c);
    if (select >= 0 && select < m_lstControls->topLevelItemCount())
        m_lstControls->setCurrentItem(m_lstControls->topLevelItem(select));
}

void frmFormEditor::finish()
{
    if (m_radType[1]->isChecked())
        core::ui::StoreHistoryCombo(m_cmbURL[1], QStringLiteral("E-Mail Addresses"));
    else
        core::ui::StoreHistoryCombo(m_cmbURL[0], QStringLiteral("Links"));
    markup::InsertMarkup(model().generate(), QString());
    m_tag = QStringLiteral("1");
    accept();
}

} // namespace qly::generators::ui
