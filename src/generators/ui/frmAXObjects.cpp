#include "generators/ui/frmAXObjects.h"

#include "core/Feedback.h"
#include "generators/AxTag.h"
#include "generators/ui/PreviewPane.h"
#include "generators/ui/frmaxOptions.h"
#include "platform/Prompts.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qly::generators::ui {

frmAXObjects::frmAXObjects(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmAXObjects"), QStringLiteral("ActiveX Parameters"), parent)
{
    core::ShowStatus(QStringLiteral("Sniffing Registry, please wait..."));
    m_objects.loadInstalled();

    auto *row = new QHBoxLayout;
    auto *left = new QVBoxLayout;
    m_lstControls = new QListWidget(this);
    m_lstControls->setObjectName(QStringLiteral("lstControls"));
    const int em = fontMetrics().averageCharWidth();
    m_lstControls->setMinimumWidth(em * 22);
    m_chkShowax = new QCheckBox(QStringLiteral("Only Show &ActiveX Objects"), this);
    m_chkShowax->setObjectName(QStringLiteral("chkShowax"));
    m_chkShowax->setChecked(true);
    left->addWidget(m_lstControls, 1);
    left->addWidget(m_chkShowax);
    row->addLayout(left);

    m_frame = new QGroupBox(QStringLiteral("ActiveX Parameters"), this);
    m_frame->setObjectName(QStringLiteral("fraInfo"));
    auto *right = new QVBoxLayout(m_frame);
    auto *names = new QFormLayout;
    m_txtName = new QLineEdit(m_frame);
    m_txtName->setObjectName(QStringLiteral("txtName"));
    names->addRow(QStringLiteral("ID:"), m_txtName);
    right->addLayout(names);
    m_lstInfo = new QTreeWidget(m_frame);
    m_lstInfo->setObjectName(QStringLiteral("lstInfo"));
    m_lstInfo->setHeaderLabels({QStringLiteral("Property"), QStringLiteral("Description"), QStringLiteral("Type"),
                                QStringLiteral("Value")});
    m_lstInfo->setRootIsDecorated(false);
    m_lstInfo->setMinimumWidth(em * 44);
    right->addWidget(m_lstInfo, 1);
    auto *editors = new QHBoxLayout;
    m_txtValue = new QLineEdit(m_frame);
    m_txtValue->setObjectName(QStringLiteral("txtValue"));
    m_chkValue = new QCheckBox(QStringLiteral("True"), m_frame);
    m_chkValue->setObjectName(QStringLiteral("chkValue"));
    m_cmbCombo = new QComboBox(m_frame);
    m_cmbCombo->setObjectName(QStringLiteral("cmbCombo"));
    m_imgCol = new QPushButton(QStringLiteral("Colour..."), m_frame);
    m_imgCol->setObjectName(QStringLiteral("imgCol"));
    for (QWidget *w : std::initializer_list<QWidget *>{m_txtValue, m_chkValue, m_cmbCombo, m_imgCol}) {
        editors->addWidget(w);
        w->hide();
    }
    editors->addStretch();
    right->addLayout(editors);
    row->addWidget(m_frame, 1);
    form()->addRow(row);

    auto *actions = new QHBoxLayout;
    auto *options = new QPushButton(QStringLiteral("&Options..."), this);
    options->setObjectName(QStringLiteral("cmdOptions"));
    auto *show = new QPushButton(QStringLiteral("&Preview"), this);
    show->setObjectName(QStringLiteral("btnPreview"));
    actions->addWidget(options);
    actions->addWidget(show);
    actions->addStretch();
    form()->addRow(actions);

    connect(m_chkShowax, &QCheckBox::toggled, this, &frmAXObjects::fillControls);
    connect(m_lstControls, &QListWidget::currentRowChanged, this, &frmAXObjects::chooseControl);
    connect(m_lstInfo, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) { showEditor(item); });
    auto current = [this] { return m_lstInfo->indexOfTopLevelItem(m_lstInfo->currentItem()); };
    connect(m_txtValue, &QLineEdit::textEdited, this, [this, current](const QString &v) { setValue(current(), v); });
    connect(m_chkValue, &QCheckBox::clicked, this, [this, current](bool on) {
        setValue(current(), on ? QStringLiteral("TRUE") : QStringLiteral("FALSE"));
    });
    connect(m_cmbCombo, &QComboBox::activated, this, [this, current] {
        setValue(current(), ListChoiceValue(m_cmbCombo->currentText()));
    });
    connect(m_imgCol, &QPushButton::clicked, this, [this, current] {
        const QColor c = QColorDialog::getColor(Qt::white, this);
        if (c.isValid())
            setValue(current(), u'#' + QStringLiteral("%1").arg(c.rgb() & 0xFFFFFF, 6, 16, QLatin1Char('0')).toUpper());
    });
    connect(options, &QPushButton::clicked, this, [this] {
        frmaxOptions dialog(m_controlTable.value(0), this);
        if (dialog.ask())
            m_preview->changedIfLive();
    });
    connect(show, &QPushButton::clicked, this, &frmAXObjects::preview);

    m_preview = new PreviewPane([this] { return AxPreviewPage(tagText()); }, this);
    m_preview->setObjectName(QStringLiteral("preview"));
    addBelowFields(m_preview);
    m_preview->hide();   // until the first preview
    connect(m_txtName, &QLineEdit::textChanged, m_preview, &PreviewPane::changedIfLive);
    fillControls();
    core::ShowStatus(QString());
}

void frmAXObjects::fillControls()
{
    m_controlTable = m_objects.BuildComponentList(m_chkShowax->isChecked());
    m_lstControls->blockSignals(true);
    m_lstControls->clear();
    for (const ControlRow &r : std::as_const(m_controlTable))
        m_lstControls->addItem(r.value(2));
    m_lstControls->blockSignals(false);
    m_current = -1;
    ClearValues();
    m_frame->setTitle(QStringLiteral("ActiveX Parameters"));
}

void frmAXObjects::ClearValues()
{
    m_lstInfo->clear();
    showEditor(nullptr);
}

void frmAXObjects::chooseControl(int row)
{
    if (row < 0 || row >= m_controlTable.size())
        return;
    if (m_lstControls->currentRow() != row) {
        const QSignalBlocker quiet(m_lstControls);
        m_lstControls->setCurrentRow(row);
    }
    const ControlRow &r = m_controlTable.at(row);
    const AxClass *c = m_objects.classOfServer(r.value(3));
    ClearValues();
    if (!c) {
        m_current = -1;
        platform::MsgBox(QStringLiteral("Cannot find ActiveX: ") + r.value(2));
        return;
    }
    m_current = row;
    QString id = r.value(2);
    id.remove(u' ');
    m_txtName->setText(id);
    ShowAxInfo(*c);
    m_preview->changedIfLive();
}

void frmAXObjects::ShowAxInfo(const AxClass &c)
{
    m_frame->setTitle(QStringLiteral("ActiveX Parameters [") + c.name + u']');
    for (const AxProperty &p : c.properties) {
        auto *item = new QTreeWidgetItem(m_lstInfo, {p.name, p.description, p.type, QString()});
        item->setData(0, Qt::UserRole, p.type);
        item->setData(1, Qt::UserRole, p.values);
        item->setData(2, Qt::UserRole, p.isColor());
    }
    for (int col = 0; col < 3; ++col)
        m_lstInfo->resizeColumnToContents(col);
}

void frmAXObjects::BuildEnumCombo(const QStringList &values)
{
    m_cmbCombo->clear();
    m_cmbCombo->addItems(values);
    m_cmbCombo->setCurrentIndex(-1);
}

void frmAXObjects::showEditor(QTreeWidgetItem *item)
{
    const QString type = item ? item->data(0, Qt::UserRole).toString() : QString();
    m_txtValue->setVisible(type == QLatin1String("STRING") || type == QLatin1String("LONG"));
    m_chkValue->setVisible(type == QLatin1String("BOOL"));
    m_cmbCombo->setVisible(type == QLatin1String("LIST"));
    m_imgCol->setVisible(item && item->data(2, Qt::UserRole).toBool());
    if (!item)
        return;
    m_txtValue->setText(item->text(3));
    m_chkValue->setChecked(item->text(3) == QLatin1String("TRUE"));
    if (type == QLatin1String("LIST"))
        BuildEnumCombo(item->data(1, Qt::UserRole).toStringList());
}

void frmAXObjects::setValue(int row, const QString &value)
{
    if (QTreeWidgetItem *item = m_lstInfo->topLevelItem(row)) {
        item->setText(3, value);
        m_preview->changedIfLive();
    }
}

QString frmAXObjects::tagText() const
{
    if (m_current < 0)
        return {};
    QList<QPair<QString, QString>> values;
    for (int i = 0; i < m_lstInfo->topLevelItemCount(); ++i)
        values << qMakePair(m_lstInfo->topLevelItem(i)->text(0), m_lstInfo->topLevelItem(i)->text(3));
    const ControlRow &r = m_controlTable.at(m_current);
    return BuildObjTag(AxTagOptions::read(), m_txtName->text(), r.value(1), r.value(0), values);
}

void frmAXObjects::preview()
{
    if (!tagText().isEmpty())
        m_preview->showLive(this);
}

bool frmAXObjects::confirm()
{
    return m_current >= 0;
}

} // namespace qly::generators::ui
