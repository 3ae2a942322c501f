#include "images/ui/frmAnimator.h"

#include "core/Settings.h"
#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"
#include "generators/AppletFallback.h"
#include "images/PictureSize.h"
#include "images/ui/FrameStrip.h"
#include "images/ui/ImageCodec.h"
#include "images/ui/frmAnimFiles.h"
#include "images/ui/frmImageProc.h"
#include "markup/Links.h"
#include "markup/TagPrimitives.h"
#include "publish/Preview.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::images::ui {

namespace {

const QString kSection = QStringLiteral("Animator");
const QString kTrailerKey = QStringLiteral("Standard GIF Trailer");
const QSize kCanvas(240, 180);

QPointer<frmAnimator> &openAnimator()
{
    static QPointer<frmAnimator> dialog;
    return dialog;
}

// A field with its unit after it.
QWidget *withUnit(QWidget *field, const QString &unit)
{
    auto *box = new QWidget;
    auto *row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(field);
    row->addWidget(new QLabel(unit));
    row->addStretch();
    return box;
}

QLineEdit *numberField(const QString &text = {})
{
    auto *field = new QLineEdit(text);
    field->setMaximumWidth(80);
    return field;
}

QColor fromBgr(quint32 bgr)
{
    return QColor(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}

} // namespace

frmAnimator::frmAnimator(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmAnimator"));
    setWindowTitle(QStringLiteral("Animator"));
    m_strip = new FrameStrip;
    m_imgTrash = new QLabel;
    m_imgTrash->setAlignment(Qt::AlignCenter);
    m_imgTrash->setFrameShape(QFrame::StyledPanel);
    m_imgTrash->setToolTip(QStringLiteral("Drag a frame here to delete it"));
    m_strip->setTrash(m_imgTrash);
    m_imgTrash->setPixmap(style()->standardIcon(QStyle::SP_TrashIcon).pixmap(32, 32));
    m_imgTrash->setFixedSize(56, 44);
    m_scrAnimator = new QScrollBar(Qt::Horizontal);
    m_scrAnimator->setRange(0, 0);
    m_txtFrame = new QLabel;
    m_txtFrame->setMinimumWidth(220);
    m_picPlay = new QLabel;
    m_picPlay->setFixedSize(kCanvas);
    m_picPlay->setAlignment(Qt::AlignCenter);
    m_picPlay->setFrameShape(QFrame::StyledPanel);
    m_picPlay->setStyleSheet(QStringLiteral("QLabel { background: white; }"));

    const QStyle::StandardPixmap icons[3] = {QStyle::SP_MediaPlay, QStyle::SP_MediaStop, QStyle::SP_MediaSkipForward};
    const char *tips[3] = {"Play", "Stop", "Step to the next frame"};
    auto *controls = new QHBoxLayout;
    controls->addStretch();
    for (int i = 0; i < 3; ++i) {
        m_sscControls[i] = new QToolButton;
        m_sscControls[i]->setIcon(style()->standardIcon(icons[i]));
        m_sscControls[i]->setToolTip(QString::fromLatin1(tips[i]));
        controls->addWidget(m_sscControls[i]);
    }
    controls->addStretch();

    auto *current = new QHBoxLayout;
    current->addWidget(new QLabel(QStringLiteral("Frame:")));
    current->addWidget(m_scrAnimator, 1);
    current->addWidget(m_txtFrame, 2);
    current->addWidget(m_imgTrash);

    auto *left = new QVBoxLayout;
    left->addWidget(m_strip);
    left->addLayout(current);
    auto *right = new QVBoxLayout;
    right->addWidget(m_picPlay);
    right->addLayout(controls);
    auto *top = new QHBoxLayout;
    top->addLayout(left, 1);
    top->addLayout(right);

    m_tabMain = new QTabWidget;
    m_tabMain->addTab(framesTab(), QStringLiteral("Frame"));
    m_tabMain->addTab(gifTab(), QStringLiteral("GIF 89a"));
    m_tabMain->addTab(appletTab(), QStringLiteral("Applet"));
    m_tabMain->addTab(propertiesTab(), QStringLiteral("Properties"));

    auto *cmdAdd = new QPushButton(QStringLiteral("&Add Frames..."));
    auto *cmdClear = new QPushButton(QStringLiteral("C&lear"));
    auto *cmdProcess = new QPushButton(QStringLiteral("&Image Processing..."));
    auto *cmdPreview = new QPushButton(QStringLiteral("&Preview in Browser"));
    auto *cmdOK = new QPushButton(QStringLiteral("OK"));
    auto *cmdCancel = new QPushButton(QStringLiteral("Cancel"));
    auto *cmdHelp = new QPushButton(QStringLiteral("Help"));
    cmdOK->setDefault(true);
    auto *buttons = new QHBoxLayout;
    for (QPushButton *b : {cmdAdd, cmdClear, cmdProcess, cmdPreview})
        buttons->addWidget(b);
    buttons->addStretch();
    for (QPushButton *b : {cmdOK, cmdCancel, cmdHelp})
        buttons->addWidget(b);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_tabMain);
    layout->addStretch(1);
    layout->addLayout(buttons);

    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    connect(m_sscControls[0], &QToolButton::clicked, this, [this] { play(); });
    connect(m_sscControls[1], &QToolButton::clicked, this, [this] { stop(); });
    connect(m_sscControls[2], &QToolButton::clicked, this, [this] { step(); });
    connect(m_scrAnimator, &QScrollBar::valueChanged, this, [this](int v) { DisplayFrame(v); });
    connect(m_strip, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            DisplayFrame(row);
    });
    // The gesture is finished before the strip is rebuilt under it.
    connect(m_strip, &FrameStrip::frameMoved, this, [this](int from, int to) {
        m_model.MoveRow(from, to);
        ReloadFrames();
        DisplayFrame(to);
    }, Qt::QueuedConnection);
    connect(m_strip, &FrameStrip::frameDeleted, this, [this](int row) {
        m_model.DeleteRow(row);
        ReloadFrames();
    }, Qt::QueuedConnection);
    connect(cmdAdd, &QPushButton::clicked, this, [this] { cmdAdd_Click(); });
    connect(cmdClear, &QPushButton::clicked, this, [this] { cmdClear_Click(); });
    connect(cmdProcess, &QPushButton::clicked, this, [this] { cmdProcess_Click(); });
    connect(cmdPreview, &QPushButton::clicked, this, [this] { cmdPreview_Click(); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdHelp, &QPushButton::clicked, this, [this] { core::ui::OpenHelp(objectName()); });
    // Wide enough for six frames, but never beyond the screen.
    QSize size(980, sizeHint().height());
    if (QScreen *screen = this->screen())
        size = size.boundedTo(screen->availableGeometry().size() * 0.95);
    resize(size);
    ReloadFrames();
}

QWidget *frmAnimator::framesTab()
{
    auto *tab = new QWidget;
    auto *form = new QFormLayout(tab);
    m_txtframeDelay = numberField();
    m_cmbDisposal = new QComboBox;
    m_cmbDisposal->addItems({QStringLiteral("Background Colour"), QStringLiteral("As In The File")});
    form->addRow(QStringLiteral("Delay Time"), withUnit(m_txtframeDelay, QStringLiteral("Milliseconds")));
    form->addRow(QStringLiteral("Disposal Method"), m_cmbDisposal);
    connect(m_txtframeDelay, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (m_current >= 0 && m_current < m_model.rows.size())
            m_model.rows[m_current].frame.delay = text;
    });
    connect(m_cmbDisposal, &QComboBox::activated, this, [this](int index) {
        if (m_current >= 0 && m_current < m_model.rows.size())
            m_model.rows[m_current].frame.keepDisposal = index == 1;
    });
    return tab;
}

QWidget *frmAnimator::gifTab()
{
    auto *tab = new QWidget;
    auto *form = new QFormLayout(tab);
    m_txtRepeat = numberField(m_model.txtRepeat);
    m_txtRepeat->setToolTip(QStringLiteral("0 repeats the animation for ever"));
    m_chkPalette = new QCheckBox(QStringLiteral("Use Individual Frame Palettes"));
    m_chkTrailer = new QCheckBox(QStringLiteral("End the file with the standard trailer byte"));
    m_chkTrailer->setChecked(core::ReadSettingFlag(kSection, kTrailerKey));
    m_chkTrailer->setToolTip(QStringLiteral("Off: the file ends as this program's animations always have"));
    m_cmbExport = new QPushButton(QStringLiteral("Create GIF 89a File..."));
    form->addRow(QStringLiteral("Repeat Animation "), withUnit(m_txtRepeat, QStringLiteral("Times")));
    form->addRow(QString(), m_chkPalette);
    form->addRow(QString(), m_chkTrailer);
    form->addRow(QStringLiteral("Create"), withUnit(m_cmbExport, QString()));
    connect(m_chkTrailer, &QCheckBox::clicked, this,
            [](bool on) { core::WriteSetting(kSection, kTrailerKey, core::YesNo(on)); });
    connect(m_cmbExport, &QPushButton::clicked, this, [this] { cmbExport_Click(); });
    return tab;
}

QWidget *frmAnimator::appletTab()
{
    auto *tab = new QWidget;
    auto *grid = new QGridLayout(tab);
    m_chkBack = new QCheckBox(QStringLiteral("Background Color:"));
    m_lfcBack = new QToolButton;
    m_lfcBack->setFixedSize(48, 22);
    m_cmbDirection[0] = new QComboBox;
    m_cmbDirection[0]->addItems({QStringLiteral("Don't Move Sideways"), QStringLiteral("Left to Right"), QStringLiteral("Right to Left")});
    m_cmbDirection[1] = new QComboBox;
    m_cmbDirection[1]->addItems({QStringLiteral("Don't Move Up And Down"), QStringLiteral("Top to Bottom"), QStringLiteral("Bottom to Top")});
    m_cmbWrap = new QComboBox;
    m_cmbWrap->addItems({QStringLiteral("Bounce Off Edge"), QStringLiteral("Disappear Off Edge")});
    const char *effects[3] = {"Horz Speed:", "Time Between Frames:", "Delay Before Restarting:"};
    const QString values[3] = {m_model.horzSpeed, m_model.pause, m_model.enddelay};
    grid->addWidget(m_chkBack, 0, 0);
    grid->addWidget(m_lfcBack, 0, 1, Qt::AlignLeft);
    grid->addWidget(new QLabel(QStringLiteral("Horz Direction:")), 1, 0);
    grid->addWidget(m_cmbDirection[0], 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("Vert Direction:")), 2, 0);
    grid->addWidget(m_cmbDirection[1], 2, 1);
    grid->addWidget(new QLabel(QStringLiteral("Behaviour At Edge:")), 3, 0);
    grid->addWidget(m_cmbWrap, 3, 1);
    for (int i = 0; i < 3; ++i) {
        m_txtEffect[i] = numberField(values[i]);
        grid->addWidget(new QLabel(QString::fromLatin1(effects[i])), i, 2);
        grid->addWidget(withUnit(m_txtEffect[i], i == 0 ? QString() : QStringLiteral("Milliseconds")), i, 3);
    }
    grid->setColumnStretch(4, 1);
    connect(m_lfcBack, &QToolButton::clicked, this, [this] { pickBackColour(); });
    m_lfcBack->setStyleSheet(QStringLiteral("QToolButton { background: %1; border: 1px solid #2d3845; }")
                                 .arg(fromBgr(m_model.lfcBack).name()));
    return tab;
}

QWidget *frmAnimator::propertiesTab()
{
    auto *tab = new QWidget;
    auto *form = new QFormLayout(tab);
    m_txtprop[0] = numberField();
    m_txtprop[1] = numberField();
    m_txtprop[2] = new QLineEdit;
    m_txtprop[0]->setPlaceholderText(QStringLiteral("largest frame"));
    m_txtprop[1]->setPlaceholderText(QStringLiteral("largest frame"));
    auto *imgBrowse = new QToolButton;
    imgBrowse->setText(QStringLiteral("..."));
    auto *sound = new QWidget;
    auto *row = new QHBoxLayout(sound);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_txtprop[2], 1);
    row->addWidget(imgBrowse);
    form->addRow(QStringLiteral("Width:"), m_txtprop[0]);
    form->addRow(QStringLiteral("Height:"), m_txtprop[1]);
    form->addRow(QStringLiteral("Soundtrack:"), sound);
    connect(imgBrowse, &QToolButton::clicked, this, [this] {
        const QString file = QFileDialog::getOpenFileName(this, QStringLiteral("Soundtrack"), m_txtprop[2]->text(),
                                                          QStringLiteral("Sounds (*.au *.wav *.mid);;All Files (*)"));
        if (!file.isEmpty())
            m_txtprop[2]->setText(file);
    });
    return tab;
}

void frmAnimator::pickBackColour()
{
    const QColor colour = QColorDialog::getColor(fromBgr(m_model.lfcBack), this, QStringLiteral("Background Color"));
    if (!colour.isValid())
        return;
    m_model.lfcBack = quint32(colour.red()) | (quint32(colour.green()) << 8) | (quint32(colour.blue()) << 16);
    m_lfcBack->setStyleSheet(QStringLiteral("QToolButton { background: %1; border: 1px solid #2d3845; }").arg(colour.name()));
    m_chkBack->setChecked(true);
}

void frmAnimator::showFor(QWidget *parent)
{
    if (!openAnimator()) {
        openAnimator() = new frmAnimator(parent);
        openAnimator()->setAttribute(Qt::WA_DeleteOnClose);
    }
    openAnimator()->show();
    openAnimator()->raise();
    openAnimator()->activateWindow();
}

void frmAnimator::AddFile(const QString &path)
{
    if (m_model.AddFile(path))
        ReloadFrames();
}

void frmAnimator::ReloadFrames()
{
    QStringList files;
    m_pictures.clear();
    for (const AnimatorRow &row : std::as_const(m_model.rows)) {
        files << row.frame.file;
        m_pictures << LoadImage(row.frame.file);
    }
    m_strip->setFrames(files);
    m_scrAnimator->setRange(0, std::max<int>(0, int(files.size()) - 1));
    DisplayFrame(files.isEmpty() ? -1 : std::clamp(m_current, 0, int(files.size()) - 1));
}

void frmAnimator::DisplayFrame(int index)
{
    m_current = index;
    const bool any = index >= 0 && index < m_model.rows.size();
    m_txtFrame->setText(any ? QFileInfo(m_model.rows[index].frame.file).fileName()
                            : QStringLiteral("<No Frames Currently Specified>"));
    m_txtframeDelay->setEnabled(any);
    m_cmbDisposal->setEnabled(any);
    m_txtframeDelay->setText(any ? m_model.rows[index].frame.delay : QString());
    m_cmbDisposal->setCurrentIndex(any && m_model.rows[index].frame.keepDisposal ? 1 : 0);
    if (any) {
        const QSignalBlocker block(m_scrAnimator);
        m_scrAnimator->setValue(index);
        if (m_strip->currentRow() != index)
            m_strip->setCurrentRow(index);
    }
    if (!playing())
        showOnCanvas(index);
}

void frmAnimator::showOnCanvas(int index)
{
    m_playIndex = index;
    if (index < 0 || index >= m_pictures.size() || m_pictures[index].isNull()) {
        m_picPlay->clear();
        return;
    }
    QImage image = m_pictures[index];
    if (image.width() > kCanvas.width() || image.height() > kCanvas.height())
        image = image.scaled(kCanvas, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    m_picPlay->setPixmap(QPixmap::fromImage(image));
}

void frmAnimator::play()
{
    if (m_pictures.isEmpty())
        return;
    if (m_playIndex < 0 || m_playIndex >= m_pictures.size())
        showOnCanvas(0);
    m_timer.start(frameDelay(m_playIndex));
}

void frmAnimator::stop()
{
    m_timer.stop();
}

void frmAnimator::step()
{
    stop();
    if (!m_pictures.isEmpty())
        showOnCanvas((m_playIndex + 1) % int(m_pictures.size()));
}

int frmAnimator::frameDelay(int index) const
{
    // A frame stays for its own delay; a delay of 0 is shown briefly.
    const int delay = index >= 0 && index < m_model.rows.size() ? static_cast<int>(Val(m_model.rows[index].frame.delay)) : 0;
    return std::max(delay, 20);
}

void frmAnimator::Timer1_Timer()
{
    if (m_pictures.isEmpty())
        return;
    showOnCanvas((m_playIndex + 1) % int(m_pictures.size()));
    m_timer.start(frameDelay(m_playIndex));
}

void frmAnimator::readFields()
{
    m_model.txtRepeat = m_txtRepeat->text();
    m_model.chkPalette = m_chkPalette->isChecked();
    m_model.standardTrailer = m_chkTrailer->isChecked();
    m_model.chkBack = m_chkBack->isChecked();
    m_model.horizontal = AnimatorModel::Horizontal(m_cmbDirection[0]->currentIndex());
    m_model.vertical = AnimatorModel::Vertical(m_cmbDirection[1]->currentIndex());
    m_model.cmbWrap = AnimatorModel::Edge(m_cmbWrap->currentIndex());
    m_model.horzSpeed = m_txtEffect[0]->text();
    m_model.pause = m_txtEffect[1]->text();
    m_model.enddelay = m_txtEffect[2]->text();
    m_model.width = m_txtprop[0]->text();
    m_model.height = m_txtprop[1]->text();
    m_model.soundtrack = m_txtprop[2]->text();
}

void frmAnimator::cmdAdd_Click()
{
    // Past the limit the message comes once, not once a file.
    for (const QString &file : frmAnimFiles::pick(this)) {
        const bool full = m_model.rows.size() >= AnimatorModel::kMaxFrames;
        AddFile(file);
        if (full)
            break;
    }
}

void frmAnimator::cmdClear_Click()
{
    stop();
    m_model.cmdClear_Click();
    m_current = -1;
    ReloadFrames();
}

QString frmAnimator::cmbExport_Click()
{
    readFields();
    return m_model.cmbExport_Click();
}

QString frmAnimator::GenerateTag()
{
    readFields();
    QString fallback;
    if (generators::AppletFallbackOn() && !m_model.rows.isEmpty()) {
        // The animated GIF that today's browsers show in the applet's place.
        const QString gif = m_model.cmbExport_Click();
        if (!gif.isEmpty()) {
            fallback = markup::RelativeLink(gif);
            if (fallback.isEmpty())
                fallback = markup::PathToFileUrl(gif);
        }
    }
    return m_model.GenerateAppletTag(false, fallback);
}

void frmAnimator::cmdOK_Click()
{
    const QString tag = GenerateTag();
    if (tag.isEmpty())
        return;
    markup::InsertMarkup(tag, QString());
    accept();
}

void frmAnimator::cmdPreview_Click()
{
    readFields();
    const QString page = m_model.PreviewAnimationDoc();
    if (!page.isEmpty())
        publish::OpenInDefaultBrowser(publish::BrowserUrl(page));
}

void frmAnimator::cmdProcess_Click()
{
    if (m_current < 0 || m_current >= m_model.rows.size())
        return;
    const QString saved = frmImageProc::run(this, m_model.rows[m_current].frame.file);
    const QString ext = QFileInfo(saved).suffix().toLower();
    if (saved.isEmpty() || (ext != QLatin1String("gif") && ext != QLatin1String("jpg")))
        return;
    // The processed picture takes the frame's place, with the frame's settings.
    AnimatorRow &row = m_model.rows[m_current];
    row.frame.file = saved;
    row.link = markup::RelativeLink(saved);
    if (row.link.isEmpty())
        row.link = markup::PathToFileUrl(saved);
    row.size = PictureSize(saved);
    ReloadFrames();
}

} // namespace qly::images::ui
