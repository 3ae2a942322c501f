#include "images/ui/frmTabbuster.h"

#include "core/Paths.h"
#include "core/Settings.h"
#include "images/GifReader.h"
#include "images/ui/ImageCodec.h"
#include "images/ui/SquishImage.h"
#include "platform/Prompts.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qly::images::ui {

namespace {

const QString kGeneral = QStringLiteral("General");

QPointer<frmTabbuster> &openOptimizer()
{
    static QPointer<frmTabbuster> dialog;
    return dialog;
}

// Five options, the last "Other" with its own field.
QButtonGroup *levelGroup(QWidget *parent, QBoxLayout *into, const QStringList &captions, QLineEdit *other, int checked)
{
    auto *group = new QButtonGroup(parent);
    auto *row = new QHBoxLayout;
    for (int i = 0; i < captions.size(); ++i) {
        auto *b = new QRadioButton(captions[i]);
        group->addButton(b, i);
        row->addWidget(b);
    }
    group->button(checked)->setChecked(true);
    other->setEnabled(false);
    other->setMaximumWidth(60);
    row->addWidget(other);
    into->addLayout(row);
    QObject::connect(group, &QButtonGroup::idClicked, other, [other](int id) {
        other->setEnabled(id == 4);
        if (id == 4)
            other->setFocus();
        else
            other->clear();
    });
    return group;
}

QString levelOf(const QButtonGroup *group, const QLineEdit *other)
{
    const int id = group->checkedId();
    if (id < 0)
        return {};
    return id == 4 ? other->text().trimmed() : group->button(id)->text().remove(u'%');
}

} // namespace

frmTabbuster::frmTabbuster(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmTabbuster"));
    setWindowTitle(QStringLiteral("Page Optimizer"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(resourcesBox(), 3);
    auto *lower = new QHBoxLayout;
    lower->addWidget(optionsBox(), 1);
    lower->addWidget(manualBox(), 1);
    layout->addLayout(lower);

    auto *buttons = new QHBoxLayout;
    m_btnBandBust = new QPushButton(QStringLiteral("Start Auto Processing"));
    m_btnManual = new QPushButton(QStringLiteral("Start Manual Processing"));
    m_progress = new QProgressBar;
    m_progress->setTextVisible(true);
    m_btnCancel = new QPushButton(QStringLiteral("Cancel"));
    m_btnCancel->setEnabled(false);
    auto *close = new QPushButton(QStringLiteral("Close"));
    for (QWidget *w : {static_cast<QWidget *>(m_btnBandBust), static_cast<QWidget *>(m_btnManual),
                       static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_btnCancel), static_cast<QWidget *>(close)})
        buttons->addWidget(w);
    layout->addLayout(buttons);
    connect(m_btnBandBust, &QPushButton::clicked, this, &frmTabbuster::btnBandBust_Click);
    connect(m_btnManual, &QPushButton::clicked, this, &frmTabbuster::btnManual_Click);
    connect(m_btnCancel, &QPushButton::clicked, this, &frmTabbuster::cancelRun);
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    // Form_Load
    m_txtsavedir->setText(core::ReadSetting(kGeneral, QStringLiteral("SaveDir")));
    const QString bust = core::ReadSetting(kGeneral, QStringLiteral("WhatToBust"));
    for (QAbstractButton *b : m_imageOption->buttons())
        b->setChecked(b->property("word").toString() == bust);
    // Never larger than the screen, whatever its scale.
    const QSize room = (parent ? parent->screen() : QApplication::primaryScreen())->availableSize() * 9 / 10;
    resize(QSize(900, 640).boundedTo(room));
}

frmTabbuster::~frmTabbuster() = default;

QWidget *frmTabbuster::resourcesBox()
{
    auto *box = new QGroupBox(QStringLiteral("Resources"));
    auto *v = new QVBoxLayout(box);
    auto *top = new QHBoxLayout;
    m_txtIndex = new QLineEdit;
    m_txtIndex->setReadOnly(true);
    m_txtIndex->setPlaceholderText(QStringLiteral("Index HTML file"));
    auto *open = new QPushButton(QStringLiteral("Open Index..."));
    connect(open, &QPushButton::clicked, this, &frmTabbuster::btnOpen_Click);
    m_cmbSpeed = new QComboBox;
    m_cmbSpeed->addItems(SpeedRows());
    m_cmbSpeed->setCurrentIndex(1);
    connect(m_cmbSpeed, &QComboBox::currentIndexChanged, this, &frmTabbuster::DisplayResources);
    m_lblSize = new QLabel;
    m_lbldowntime = new QLabel;
    m_txtmarksize = new QLineEdit(QStringLiteral("10"));
    m_txtmarksize->setMaximumWidth(60);
    auto *mark = new QPushButton(QStringLiteral("Mark"));
    connect(mark, &QPushButton::clicked, this, &frmTabbuster::MarkResources);
    top->addWidget(m_txtIndex, 1);
    top->addWidget(open);
    top->addWidget(new QLabel(QStringLiteral("Speed")));
    top->addWidget(m_cmbSpeed);
    v->addLayout(top);
    auto *figures = new QHBoxLayout;
    figures->addWidget(new QLabel(QStringLiteral("Size of Site")));
    figures->addWidget(m_lblSize);
    figures->addSpacing(20);
    figures->addWidget(new QLabel(QStringLiteral("Time")));
    figures->addWidget(m_lbldowntime);
    figures->addStretch();
    figures->addWidget(new QLabel(QStringLiteral("Mark Resources Over")));
    figures->addWidget(m_txtmarksize);
    figures->addWidget(new QLabel(QStringLiteral("Kb")));
    figures->addWidget(mark);
    v->addLayout(figures);
    m_lstImages = new QTreeWidget;
    m_lstImages->setRootIsDecorated(false);
    QStringList headers{QStringLiteral("File"), QStringLiteral("Bytes"), QStringLiteral("Kind")};
    for (const QString &speed : SpeedRows())
        headers << speed.section(u' ', 0, 0);
    m_lstImages->setHeaderLabels(headers);
    m_lstImages->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_lstImages->header()->setStretchLastSection(false);
    v->addWidget(m_lstImages);
    return box;
}

QWidget *frmTabbuster::optionsBox()
{
    auto *box = new QGroupBox(QStringLiteral("Optimization"));
    auto *v = new QVBoxLayout(box);
    v->addWidget(new QLabel(QStringLiteral("GIF compression (Quality Factor)")));
    m_txtother2 = new QLineEdit;
    m_rbcompress = levelGroup(this, v,
                              {QStringLiteral("80%"), QStringLiteral("70%"), QStringLiteral("60%"), QStringLiteral("50%"),
                               QStringLiteral("Other")},
                              m_txtother2, 0);
    v->addWidget(new QLabel(QStringLiteral("JPEG conversion (Quality Factor)")));
    m_txtOther = new QLineEdit;
    m_rbJpeg = levelGroup(this, v,
                          {QStringLiteral("50%"), QStringLiteral("60%"), QStringLiteral("70%"), QStringLiteral("80%"),
                           QStringLiteral("Other")},
                          m_txtOther, 3);
    m_imageOption = new QButtonGroup(this);
    const std::pair<const char *, BustMode> choices[] = {{"Insert as LOW SRC", BustMode::LowSrc},
                                                         {"Replace Image", BustMode::Replace},
                                                         {"Convert GIF to JPEG", BustMode::GifToJpeg}};
    auto *row = new QHBoxLayout;
    for (const auto &[caption, mode] : choices) {
        auto *c = new QCheckBox(QString::fromLatin1(caption));
        c->setProperty("word", BustWord(mode));
        c->setProperty("mode", int(mode));
        m_imageOption->addButton(c);
        row->addWidget(c);
    }
    auto *remove = new QCheckBox(QStringLiteral("Remove All Images"));
    remove->setObjectName(QStringLiteral("chkremoveimages"));
    m_imageOption->addButton(remove);
    row->addWidget(remove);
    v->addLayout(row);
    m_chkoverwritehtml = new QCheckBox(QStringLiteral("Overwrite Original HTML (each page is kept as .bak)"));
    v->addWidget(m_chkoverwritehtml);
    auto *save = new QHBoxLayout;
    m_txtsavedir = new QLineEdit;
    auto *browse = new QPushButton(QStringLiteral("..."));
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString dir = platform::prompts().chooseDirectory(QStringLiteral("Save Directory"), m_txtsavedir->text());
        if (!dir.isEmpty())
            m_txtsavedir->setText(dir);
    });
    connect(m_chkoverwritehtml, &QCheckBox::toggled, m_txtsavedir, &QWidget::setDisabled);
    save->addWidget(new QLabel(QStringLiteral("Save Directory")));
    save->addWidget(m_txtsavedir, 1);
    save->addWidget(browse);
    v->addLayout(save);
    return box;
}

QWidget *frmTabbuster::manualBox()
{
    auto *box = new QGroupBox(QStringLiteral("Manual Processing"));
    auto *grid = new QGridLayout(box);
    grid->addWidget(new QLabel(QStringLiteral("Original Image")), 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Compressed Image")), 0, 1);
    m_picOriginal = new QLabel;
    m_picCompressed = new QLabel;
    m_factsOriginal = new QLabel;
    m_factsCompressed = new QLabel;
    for (QLabel *pic : {m_picOriginal, m_picCompressed}) {
        pic->setMinimumSize(160, 120);
        pic->setAlignment(Qt::AlignCenter);
        pic->setFrameShape(QFrame::StyledPanel);
    }
    grid->addWidget(m_picOriginal, 1, 0);
    grid->addWidget(m_picCompressed, 1, 1);
    grid->addWidget(m_factsOriginal, 2, 0);
    grid->addWidget(m_factsCompressed, 2, 1);
    m_btnnext = new QPushButton(QStringLiteral("Next Image >"));
    m_btnSaveImage = new QPushButton(QStringLiteral("Save Image"));
    m_btnnext->setEnabled(false);
    m_btnSaveImage->setEnabled(false);
    grid->addWidget(m_btnSaveImage, 3, 0);
    grid->addWidget(m_btnnext, 3, 1);
    connect(m_btnnext, &QPushButton::clicked, this, &frmTabbuster::btnnext_Click);
    connect(m_btnSaveImage, &QPushButton::clicked, this, &frmTabbuster::btnSaveImage_Click);
    return box;
}

void frmTabbuster::showFor(QWidget *parent)
{
    if (!openOptimizer()) {
        openOptimizer() = new frmTabbuster(parent);
        openOptimizer()->setAttribute(Qt::WA_DeleteOnClose);
    }
    openOptimizer()->show();
    openOptimizer()->raise();
    openOptimizer()->activateWindow();
}

frmTabbuster *frmTabbuster::current()
{
    return openOptimizer();
}

void frmTabbuster::btnOpen_Click()
{
    platform::FileRequest request;
    request.title = QStringLiteral("Open Index HTML File");
    request.directory = core::ReadSetting(kGeneral, QStringLiteral("HTMLDir"));
    request.filter = QStringLiteral("HTML Files (*.htm)|*.htm;*.html");
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (answer.accepted())
        OpenIndex(answer.files.first());
}

void frmTabbuster::OpenIndex(const QString &file)
{
    m_manual.reset();
    m_walk = WalkSite(file);
    m_txtIndex->setText(m_walk.indexPage);
    if (!m_walk.pages.isEmpty())
        core::WriteSetting(kGeneral, QStringLiteral("HTMLDir"), m_walk.siteFolder());
    DisplayResources();
}

void frmTabbuster::DisplayResources()
{
    const SiteFigures figures = images::DisplayResources(m_walk, m_cmbSpeed->currentText());
    m_lblSize->setText(figures.size);
    m_lbldowntime->setText(figures.time);
    m_lstImages->clear();
    const QDir site(m_walk.siteFolder());
    for (const Resource &r : m_walk.resources) {
        QStringList cells{site.relativeFilePath(r.path), FormatSize(r.bytes), r.kind};
        for (const QString &speed : SpeedRows())
            cells << DownloadTime(r.bytes, speed);
        auto *item = new QTreeWidgetItem(m_lstImages, cells);
        item->setToolTip(0, r.path);
        for (int c = 1; c < cells.size(); ++c)
            if (c != 2)
                item->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
        if (r.marked) {
            QFont bold = item->font(0);
            bold.setBold(true);
            for (int c = 0; c < cells.size(); ++c)
                item->setFont(c, bold);
        }
    }
    for (const QString &missing : m_walk.missing) {
        auto *item = new QTreeWidgetItem(m_lstImages, {site.relativeFilePath(missing), QString(), QStringLiteral("missing")});
        item->setForeground(0, Qt::red);
    }
    for (int c = 1; c < m_lstImages->columnCount(); ++c)
        m_lstImages->resizeColumnToContents(c);
}

void frmTabbuster::MarkResources()
{
    OverMarkSize(m_walk.resources, m_txtmarksize->text());
    DisplayResources();
}

RunOptions frmTabbuster::options() const
{
    RunOptions o;
    if (QAbstractButton *b = m_imageOption->checkedButton()) {
        o.removeImages = b->objectName() == QLatin1String("chkremoveimages");
        if (!o.removeImages)
            o.mode = BustMode(b->property("mode").toInt());
    }
    o.level = o.mode == BustMode::GifToJpeg ? levelOf(m_rbJpeg, m_txtOther) : levelOf(m_rbcompress, m_txtother2);
    o.overwrite = m_chkoverwritehtml->isChecked();
    o.saveDir = m_txtsavedir->text().trimmed();
    return o;
}

bool frmTabbuster::step(int done, int total, const QString &file)
{
    m_progress->setMaximum(total);
    m_progress->setValue(done);
    m_progress->setFormat(core::FileNameOf(file) + QStringLiteral("  %v/%m"));
    QApplication::processEvents();
    return !m_cancel;
}

void frmTabbuster::setRunning(bool on)
{
    m_running = on;
    m_cancel = false;
    m_btnCancel->setEnabled(on);
    m_btnBandBust->setEnabled(!on);
    m_btnManual->setEnabled(!on && !m_manual);
    platform::prompts().setBusy(on);
}

void frmTabbuster::btnBandBust_Click()
{
    const RunOptions o = options();
    if (m_walk.pages.isEmpty() || !CheckRunOptions(o, m_walk))
        return;
    if (o.mode)
        core::WriteSetting(kGeneral, QStringLiteral("WhatToBust"), BustWord(*o.mode));
    if (!o.overwrite)
        core::WriteSetting(kGeneral, QStringLiteral("SaveDir"), o.saveDir);
    setRunning(true);
    const RunResult result = RunAuto(m_walk, o, SquishImage,
                                     [this](int done, int total, const QString &file) { return step(done, total, file); });
    setRunning(false);
    m_progress->setFormat(result.cancelled ? QStringLiteral("Cancelled") : QStringLiteral("Done"));
}

void frmTabbuster::btnManual_Click()
{
    const RunOptions o = options();
    if (m_walk.pages.isEmpty() || !CheckRunOptions(o, m_walk, true))
        return;
    m_manual = std::make_unique<ManualRun>(m_walk, o);
    m_btnManual->setEnabled(false);
    m_btnnext->setEnabled(true);
    btnnext_Click();
}

void frmTabbuster::showImage(QLabel *picture, QLabel *facts, const QString &file)
{
    const QImage image = LoadImage(file);
    picture->setPixmap(image.isNull() ? QPixmap()
                                      : QPixmap::fromImage(image.scaled(picture->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    facts->setText(QStringLiteral("Bytes : %1\nHeight : %2\nWidth : %3\nDisk Size : %4 Kb")
                       .arg(FormatSize(QFileInfo(file).size()))
                       .arg(image.height())
                       .arg(image.width())
                       .arg(QFileInfo(file).size() / 1024.0, 0, 'f', 1));
}

void frmTabbuster::btnnext_Click()
{
    if (!m_manual)
        return;
    const QString image = m_manual->next();
    if (image.isEmpty()) {
        finishManual();
        return;
    }
    // LoadManualImage: the original beside its working copy, squeezed at the chosen level.
    const QString work = m_manual->workingCopy(m_workDir.path());
    const RunOptions o = options();
    QFile::remove(work);
    SquishImage(image, work, int(Val(o.level.isEmpty() ? QStringLiteral("80") : o.level)), o.toJpeg());
    showImage(m_picOriginal, m_factsOriginal, image);
    showImage(m_picCompressed, m_factsCompressed, work);
    m_btnSaveImage->setEnabled(true);
}

void frmTabbuster::btnSaveImage_Click()
{
    if (!m_manual || m_manual->current().isEmpty())
        return;
    m_manual->saveCurrent(m_manual->workingCopy(m_workDir.path()));
    m_btnSaveImage->setEnabled(false);
    btnnext_Click();
}

void frmTabbuster::finishManual()
{
    m_btnnext->setEnabled(false);
    m_btnSaveImage->setEnabled(false);
    setRunning(true);
    m_manual->finish([this](int done, int total, const QString &file) { return step(done, total, file); });
    m_manual.reset();
    setRunning(false);
}

} // namespace qly::images::ui
