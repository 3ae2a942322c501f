#include "generators/ui/frmFrame.h"

#include "core/Settings.h"
#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"
#include "core/ui/HistoryCombo.h"
#include "documents/FileFilter.h"
#include "generators/FrameMarkup.h"
#include "generators/TableFramePreview.h"
#include "generators/ui/FrameScreen.h"
#include "generators/ui/PreviewPane.h"
#include "markup/Links.h"
#include "markup/TagPrimitives.h"
#include "platform/Prompts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>

namespace qly::generators::ui {

namespace {

const QString kHistory = QStringLiteral("Links");

} // namespace

frmFrame::frmFrame(FrameModel::Orientation orientation, int count, QWidget *parent, bool livePreview)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setWindowTitle(QStringLiteral("Frame Editor"));
    setObjectName(QStringLiteral("frmFrame"));

    m_screen = new FrameScreen(m_model, this);
    connect(m_screen, &FrameScreen::frameSelected, this, [this] { showFrame(); });
    connect(m_screen, &FrameScreen::layoutChanged, this, [this] {
        showFrame();
        m_preview->changed();
    });

    m_frame4 = new QGroupBox(this);
    auto *form = new QFormLayout(m_frame4);
    m_txtName = new QLineEdit(m_frame4);
    m_cmbURL = new QComboBox(m_frame4);
    m_cmbURL->setEditable(true);
    m_cmbURL->setMinimumContentsLength(18);
    m_cmbURL->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    core::ui::FillHistoryCombo(m_cmbURL, kHistory);
    m_cmbURL->setCurrentText(QString());
    auto *browse = new QToolButton(m_frame4);
    browse->setText(QStringLiteral("..."));
    browse->setToolTip(QStringLiteral("Select the page to show in this frame"));
    auto *source = new QHBoxLayout;
    source->addWidget(m_cmbURL, 1);
    source->addWidget(browse);
    m_cmbScrolling = new QComboBox(m_frame4);
    m_cmbScrolling->addItems({QStringLiteral("Auto"), QStringLiteral("Yes"), QStringLiteral("No")});
    m_chkResize = new QCheckBox(QStringLiteral("Resizable"), m_frame4);
    m_chkBorder = new QCheckBox(QStringLiteral("Border"), m_frame4);
    m_txtMWidth = new QLineEdit(m_frame4);
    m_txtMHeight = new QLineEdit(m_frame4);
    m_lblWidth = new QLabel(m_frame4);
    m_lblHeight = new QLabel(m_frame4);
    form->addRow(QStringLiteral("&Name:"), m_txtName);
    auto *sourceLabel = new QLabel(QStringLiteral("&Source:"), m_frame4);
    sourceLabel->setBuddy(m_cmbURL);
    form->addRow(sourceLabel, source);
    form->addRow(QStringLiteral("S&crolling:"), m_cmbScrolling);
    form->addRow(QString(), m_chkResize);
    form->addRow(QString(), m_chkBorder);
    form->addRow(QStringLiteral("Margin Width:"), m_txtMWidth);
    form->addRow(QStringLiteral("Margin Height:"), m_txtMHeight);
    form->addRow(QStringLiteral("Width (%):"), m_lblWidth);
    form->addRow(QStringLiteral("Height (%):"), m_lblHeight);

    connect(m_txtName, &QLineEdit::textEdited, this, [this](const QString &text) {
        QString name = text;
        if (!FrameModel::CheckName(name))
            m_txtName->setText(name);
        propertiesChanged();
    });
    connect(m_cmbURL, &QComboBox::editTextChanged, this, [this] { propertiesChanged(); });
    connect(m_cmbScrolling, &QComboBox::currentIndexChanged, this, [this] { propertiesChanged(); });
    connect(m_chkResize, &QCheckBox::toggled, this, [this] { propertiesChanged(); });
    connect(m_chkBorder, &QCheckBox::toggled, this, [this] { propertiesChanged(); });
    connect(m_txtMWidth, &QLineEdit::textEdited, this, [this] { propertiesChanged(); });
    connect(m_txtMHeight, &QLineEdit::textEdited, this, [this] { propertiesChanged(); });
    connect(browse, &QToolButton::clicked, this, [this] { Picture1_Click(); });

    // Adding splits the selected frame the inner way: below it in a
    // column, beside it in a row. Splitting across makes a new outer one.
    const bool cols = orientation == FrameModel::Orientation::Cols;
    m_cmdAdd = new QPushButton(cols ? QStringLiteral("&Add Row") : QStringLiteral("&Add Column"), this);
    m_cmdAcross = new QPushButton(cols ? QStringLiteral("Split into &Columns") : QStringLiteral("Split into &Rows"), this);
    m_cmdDelete = new QPushButton(QStringLiteral("&Delete"), this);
    for (QPushButton *b : {m_cmdAdd, m_cmdAcross, m_cmdDelete})
        b->setAutoDefault(false);
    connect(m_cmdAdd, &QPushButton::clicked, this, [this] { cmdAdd_Click(); });
    connect(m_cmdAcross, &QPushButton::clicked, this, [this] { cmdAcross_Click(); });
    connect(m_cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });

    auto *side = new QVBoxLayout;
    side->addWidget(m_frame4);
    auto *edit = new QHBoxLayout;
    edit->addWidget(m_cmdAdd);
    edit->addWidget(m_cmdAcross);
    edit->addWidget(m_cmdDelete);
    side->addLayout(edit);
    side->addStretch(1);

    auto *top = new QWidget(this);
    auto *topLayout = new QHBoxLayout(top);
    topLayout->setContentsMargins(0, 0, 0, 0);
    topLayout->addWidget(m_screen, 1);
    topLayout->addWidget(scrolledPanel(side, this));

    m_preview = new PreviewPane([this] { return FramePreviewPage(m_model); }, this);
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(top);
    splitter->addWidget(m_preview);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    auto *ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setDefault(true);
    auto *cancel = new QPushButton(QStringLiteral("Cancel"), this);
    auto *help = new QPushButton(QStringLiteral("&Help"), this);
    auto *refresh = new QPushButton(QStringLiteral("&Preview"), this);
    for (QPushButton *b : {ok, cancel, help, refresh})
        buttons->addWidget(b);
    connect(ok, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cancel, &QPushButton::clicked, this, [this] {
        m_tag = QStringLiteral("0");
        reject();
    });
    connect(help, &QPushButton::clicked, this, [] { core::ui::OpenHelp(); });
    connect(refresh, &QPushButton::clicked, this, [this] {
        if (!m_preview->live())
            m_preview->setLive(true);
        else
            m_preview->refreshNow();
    });

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addLayout(buttons);
    fitToScreen(this, QSize(860, 600));
    splitter->setSizes({height() * 3 / 5, height() * 2 / 5});

    m_model.NewFrameSetup(orientation, count);
    showFrame();
    m_preview->setLive(livePreview);
}

// The selected frame's properties, size and buttons as the model has them.
void frmFrame::showFrame()
{
    m_showing = true;
    const FrameModel::Properties &p = m_model.properties();
    m_frame4->setTitle(m_model.caption());
    if (m_txtName->text() != p.name)
        m_txtName->setText(p.name);
    if (m_cmbURL->currentText() != p.source)
        m_cmbURL->setEditText(p.source);
    m_cmbScrolling->setCurrentIndex(p.scrolling);
    m_chkResize->setChecked(p.resize);
    m_chkBorder->setChecked(p.border);
    m_txtMWidth->setText(p.marginWidth);
    m_txtMHeight->setText(p.marginHeight);
    m_lblWidth->setText(QString::number(m_model.widthPercent(m_model.CurrentFrame())));
    m_lblHeight->setText(QString::number(m_model.heightPercent(m_model.CurrentFrame())));
    m_cmdAdd->setEnabled(m_model.addEnabled());
    m_cmdDelete->setEnabled(m_model.deleteEnabled());
    m_showing = false;
    m_screen->update();
}

void frmFrame::propertiesChanged()
{
    if (m_showing)
        return;
    FrameModel::Properties &p = m_model.properties();
    p.name = m_txtName->text();
    p.source = m_cmbURL->currentText();
    p.scrolling = m_cmbScrolling->currentIndex();
    p.resize = m_chkResize->isChecked();
    p.border = m_chkBorder->isChecked();
    p.marginWidth = m_txtMWidth->text();
    p.marginHeight = m_txtMHeight->text();
    // The picture and the preview show what the controls say.
    m_model.Change_FrameData();
    m_screen->update();
    m_preview->changed();
}

void frmFrame::cmdAdd_Click()
{
    m_model.Add();
    showFrame();
    m_preview->changed();
}

void frmFrame::cmdAcross_Click()
{
    m_model.SplitAcross();
    showFrame();
    m_preview->changed();
}

void frmFrame::cmdDelete_Click()
{
    m_model.DeleteFrame();
    showFrame();
    m_preview->changed();
}

void frmFrame::cmdOK_Click()
{
    m_model.Change_FrameData();
    const QString output = CompileFrames(m_model);
    m_tag = QStringLiteral("1");
    markup::InsertMarkup(output, QString(), true);
    accept();
}

void frmFrame::Picture1_Click()
{
    platform::FileRequest request;
    request.title = QStringLiteral("Creating Frame - Select Target");
    request.directory = core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Documents"));
    request.filter = documents::FileFilter();
    request.filterIndex = 2;
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (!answer.accepted())
        return;
    m_cmbURL->setEditText(markup::RelativeLink(answer.files.first()));
    propertiesChanged();
}

void frmFrame::done(int result)
{
    core::ui::StoreHistoryCombo(m_cmbURL, kHistory);
    QDialog::done(result);
}

} // namespace qly::generators::ui
