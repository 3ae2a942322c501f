#include "texttools/ui/frmConvert.h"

#include "core/Paths.h"
#include "documents/Workspace.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QUrl>
#include <QVBoxLayout>

namespace qly::texttools::ui {

namespace {

QString indexed(const char *name, int i)
{
    return QString::fromLatin1(name) + u'(' + QString::number(i) + u')';
}

QCheckBox *check(const char *name, const QString &caption, QWidget *parent)
{
    auto *box = new QCheckBox(caption, parent);
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

QPointer<frmConvert> &openDialog()
{
    static QPointer<frmConvert> dialog;
    return dialog;
}

} // namespace

QComboBox *frmConvert::combo(const char *name, const QStringList &items, int current)
{
    auto *box = new QComboBox(this);
    box->setObjectName(QString::fromLatin1(name));
    box->addItems(items);
    box->setCurrentIndex(current);
    return box;
}

frmConvert::frmConvert(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmConvert"));
    setWindowTitle(QStringLiteral("Convert Text to HTML"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);

    auto *preRow = new QHBoxLayout;
    m_chkPre = check("chkPre", QStringLiteral("Leave all the text as it is (using <PRE>)"), this);
    preRow->addWidget(m_chkPre);
    const char *columns[3] = {"40 Columns", "80 Columns", "132 Columns"};
    auto *columnGroup = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        m_rbcols[i] = new QRadioButton(QString::fromLatin1(columns[i]), this);
        m_rbcols[i]->setObjectName(indexed("rbcols", i));
        columnGroup->addButton(m_rbcols[i]);
        preRow->addWidget(m_rbcols[i]);
    }
    m_rbcols[1]->setChecked(true);
    preRow->addStretch();
    layout->addLayout(preRow);

    auto *rules = new QGroupBox(QStringLiteral("Rules"), this);
    auto *grid = new QGridLayout(rules);
    m_chkMakePara = check("chkMakePara", QStringLiteral("Change one or more blank lines to <P>"), this);
    grid->addWidget(m_chkMakePara, 0, 0, 1, 5);

    m_chkMakeList = check("chkMakeList", QStringLiteral("Make"), this);
    m_cmbListType = combo("cmbListType", TextToHtmlModel::listTypes(), -1);
    m_txtBullet = new QLineEdit(this);
    m_txtBullet->setObjectName(QStringLiteral("txtBullet"));
    m_txtBullet->setMaxLength(1);
    m_txtBullet->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("MMM")));
    m_cmbListAction = combo("cmbListAction", TextToHtmlModel::listActions(), 0);
    auto *listRow = new QHBoxLayout;
    listRow->addWidget(m_cmbListType);
    listRow->addWidget(new QLabel(QStringLiteral("list from lines starting with"), this));
    listRow->addWidget(m_txtBullet);
    listRow->addWidget(m_cmbListAction);
    listRow->addStretch();
    grid->addWidget(m_chkMakeList, 1, 0);
    grid->addLayout(listRow, 1, 1, 1, 4);

    m_chkFirstHead = check("chkFirstHead", QStringLiteral("Make"), this);
    m_cmbFirstHead = combo("cmbFirstHead", TextToHtmlModel::headTags(), -1);
    grid->addWidget(m_chkFirstHead, 2, 0);
    grid->addWidget(m_cmbFirstHead, 2, 1);
    grid->addWidget(new QLabel(QStringLiteral("from first isolated line"), this), 2, 2, 1, 3);
    m_chkOtherHead = check("chkOtherHead", QStringLiteral("Make"), this);
    m_cmbOtherHead = combo("cmbOtherHead", TextToHtmlModel::headTags(), -1);
    grid->addWidget(m_chkOtherHead, 3, 0);
    grid->addWidget(m_cmbOtherHead, 3, 1);
    grid->addWidget(new QLabel(QStringLiteral("from other isolated lines"), this), 3, 2, 1, 3);

    m_cmbIsolate = combo("cmbIsolate", TextToHtmlModel::isolations(), 1);
    auto *isolateRow = new QHBoxLayout;
    isolateRow->addWidget(new QLabel(QStringLiteral("An isolated line has a blank line:"), this));
    isolateRow->addWidget(m_cmbIsolate);
    isolateRow->addStretch();
    grid->addLayout(isolateRow, 4, 0, 1, 5);
    m_chkMakeBreak = check("chkMakeBreak", QStringLiteral("End each line with <BR>"), this);
    grid->addWidget(m_chkMakeBreak, 5, 0, 1, 5);
    grid->setColumnStretch(4, 1);
    layout->addWidget(rules);

    auto *targetRow = new QHBoxLayout;
    auto *rbDocument = new QRadioButton(QStringLiteral("Convert the current document"), this);
    rbDocument->setObjectName(QStringLiteral("rbDocument"));
    rbDocument->setChecked(true);
    m_rbFiles = new QRadioButton(QStringLiteral("Convert text files..."), this);
    m_rbFiles->setObjectName(QStringLiteral("rbFiles"));
    auto *targetGroup = new QButtonGroup(this);
    targetGroup->addButton(rbDocument);
    targetGroup->addButton(m_rbFiles);
    targetRow->addWidget(rbDocument);
    targetRow->addWidget(m_rbFiles);
    targetRow->addStretch();
    layout->addLayout(targetRow);

    auto *buttons = new QHBoxLayout;
    const char *captions[5] = {"&Apply", "Cancel", "OK", "OK", "&Help"};
    buttons->addStretch();
    for (int i : {2, 3, 0, 1, 4}) {
        m_cmdOptions[i] = new QPushButton(QString::fromLatin1(captions[i]), this);
        m_cmdOptions[i]->setObjectName(indexed("cmdOptions", i));
        m_cmdOptions[i]->setAutoDefault(false);
        buttons->addWidget(m_cmdOptions[i]);
    }
    m_cmdOptions[2]->setDefault(true);
    layout->addLayout(buttons);
    for (int i = 0; i < 4; ++i) {
        connect(m_cmdOptions[i], &QPushButton::clicked, this,
                [this, i] { press(TextToHtmlModel::Button(i)); });
    }
    connect(m_cmdOptions[4], &QPushButton::clicked, this, [] {
        QDesktopServices::openUrl(
            QUrl::fromLocalFile(core::JoinPath(core::ProgramDirectory(), QStringLiteral("help/index.html"))));
    });
    connect(m_rbFiles, &QRadioButton::toggled, this, &frmConvert::showTarget);
    showTarget();
    // Preformatted text takes a width and no other rule.
    const auto showPre = [this, rules] {
        const bool pre = m_chkPre->isChecked();
        for (QRadioButton *column : m_rbcols)
            column->setEnabled(pre);
        rules->setEnabled(!pre);
    };
    connect(m_chkPre, &QCheckBox::toggled, this, showPre);
    showPre();
}

void frmConvert::showFor(QWidget *parent)
{
    if (!documents::Workspace::CurrentDocument())
        return;
    if (openDialog()) {
        openDialog()->raise();
        openDialog()->activateWindow();
        return;
    }
    auto *dialog = new frmConvert(parent);
    if (!dialog->m_model.open()) {
        delete dialog;
        return;
    }
    openDialog() = dialog;
    dialog->show();
}

void frmConvert::showTarget()
{
    const bool files = m_rbFiles->isChecked();
    m_cmdOptions[2]->setVisible(!files);
    m_cmdOptions[3]->setVisible(files);
    m_cmdOptions[0]->setEnabled(!files);
    (files ? m_cmdOptions[3] : m_cmdOptions[2])->setDefault(true);
}

void frmConvert::readFields()
{
    TextToHtmlModel &m = m_model;
    m.chkPre = m_chkPre->isChecked();
    for (int i = 0; i < 3; ++i) {
        if (m_rbcols[i]->isChecked())
            m.rbcols = i;
    }
    m.chkMakePara = m_chkMakePara->isChecked();
    m.chkMakeList = m_chkMakeList->isChecked();
    m.cmbListType = m_cmbListType->currentIndex();
    m.txtBullet = m_txtBullet->text();
    m.cmbListAction = m_cmbListAction->currentIndex();
    m.chkFirstHead = m_chkFirstHead->isChecked();
    m.chkOtherHead = m_chkOtherHead->isChecked();
    m.cmbFirstHead = m_cmbFirstHead->currentIndex();
    m.cmbOtherHead = m_cmbOtherHead->currentIndex();
    m.cmbIsolate = m_cmbIsolate->currentIndex();
    m.chkMakeBreak = m_chkMakeBreak->isChecked();
}

void frmConvert::press(TextToHtmlModel::Button button)
{
    readFields();
    bool close = false;
    const TextToHtmlModel::MissingChoice missing = m_model.press(button, close);
    QComboBox *list = missing == TextToHtmlModel::MissingChoice::ListType    ? m_cmbListType
                      : missing == TextToHtmlModel::MissingChoice::FirstHead ? m_cmbFirstHead
                      : missing == TextToHtmlModel::MissingChoice::OtherHead ? m_cmbOtherHead
                                                                             : nullptr;
    if (list) {
        list->setFocus();
        list->showPopup();
        return;
    }
    if (close)
        QDialog::done(button == TextToHtmlModel::Cancel ? Rejected : Accepted);
}

void frmConvert::reject()
{
    // Escape and the window's close button: Cancel without the checks.
    m_model.restore();
    QDialog::reject();
}

} // namespace qly::texttools::ui
