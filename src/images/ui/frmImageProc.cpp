#include "images/ui/frmImageProc.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "core/ui/DialogFlags.h"
#include "images/GifReader.h"
#include "images/ui/PicturePane.h"
#include "platform/Prompts.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::images::ui {

namespace {

const int kLevels[4] = {50, 60, 70, 80};

QGroupBox *side(const QString &title, PicturePane *pane, QLabel *bits, QLabel *size)
{
    auto *box = new QGroupBox(title);
    auto *scroll = new QScrollArea;
    scroll->setWidget(pane);
    scroll->setWidgetResizable(true);
    scroll->setMinimumSize(200, 150);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(scroll, 1);
    layout->addWidget(bits);
    layout->addWidget(size);
    return box;
}

} // namespace

frmImageProc::frmImageProc(QWidget *parent, const QString &directory)
    : QDialog(parent, core::ui::kDialogFlags)
    , m_session(directory)
{
    setWindowTitle(QStringLiteral("Image Processing"));
    m_lblFile = new QLabel;
    m_lblFile->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_ldGIF = new PicturePane;
    m_ldJPEG = new PicturePane;
    for (int i = 0; i < 2; ++i) {
        m_lblBitsPerPixel[i] = new QLabel;
        m_lbldisksize[i] = new QLabel;
    }
    auto *panes = new QHBoxLayout;
    panes->addWidget(side(QStringLiteral("GIF Compressed"), m_ldGIF, m_lblBitsPerPixel[0], m_lbldisksize[0]));
    panes->addWidget(side(QStringLiteral("JPG Compressed"), m_ldJPEG, m_lblBitsPerPixel[1], m_lbldisksize[1]));

    auto *sizeBox = new QGroupBox(QStringLiteral("Image Size"));
    m_lblWidth = new QLabel;
    m_lblHeight = new QLabel;
    auto *sizeLayout = new QVBoxLayout(sizeBox);
    sizeLayout->addWidget(m_lblWidth);
    sizeLayout->addWidget(m_lblHeight);
    sizeLayout->addStretch();

    auto *transBox = new QGroupBox(QStringLiteral("Transparent GIF Color"));
    m_chkTransparent = new QCheckBox(QStringLiteral("Make Transparent"));
    m_shpTransColour = new QToolButton;
    m_shpTransColour->setFixedSize(40, 24);
    m_shpTransColour->setToolTip(QStringLiteral("The transparent colour; click to pick another"));
    m_sscEyeDropper = new QToolButton;
    m_sscEyeDropper->setText(QStringLiteral("&Eyedropper"));
    m_sscEyeDropper->setCheckable(true);
    m_sscEyeDropper->setToolTip(QStringLiteral("Click, then click a colour of the GIF picture"));
    auto *transLayout = new QGridLayout(transBox);
    transLayout->addWidget(m_chkTransparent, 0, 0, 1, 2);
    transLayout->addWidget(m_shpTransColour, 1, 0);
    transLayout->addWidget(m_sscEyeDropper, 1, 1);
    transLayout->setRowStretch(2, 1);

    auto *jpegBox = new QGroupBox(QStringLiteral("JPG Compression Level"));
    auto *jpegLayout = new QGridLayout(jpegBox);
    for (int i = 0; i < 5; ++i) {
        m_rbJpeg[i] = new QRadioButton(i < 4 ? QString::number(kLevels[i]) + QLatin1Char('%') : QStringLiteral("Other"));
        jpegLayout->addWidget(m_rbJpeg[i], i < 3 ? i : i - 3, i < 3 ? 0 : 1);
        connect(m_rbJpeg[i], &QRadioButton::clicked, this, [this, i] { rbJpeg_Click(i); });
    }
    m_txtOther = new QLineEdit;
    m_txtOther->setMaximumWidth(60);
    m_txtOther->setEnabled(false);
    jpegLayout->addWidget(m_txtOther, 1, 2);
    jpegLayout->setColumnStretch(3, 1);
    m_rbJpeg[3]->setChecked(true);

    m_btnSave[0] = new QPushButton(QStringLiteral("Save &GIF"));
    m_btnSave[1] = new QPushButton(QStringLiteral("Save &JPEG"));
    auto *btnClose = new QPushButton(QStringLiteral("Close"));
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(m_btnSave[0]);
    buttons->addWidget(m_btnSave[1]);
    buttons->addStretch();
    buttons->addWidget(btnClose);

    auto *controls = new QHBoxLayout;
    controls->addWidget(sizeBox);
    controls->addWidget(transBox);
    controls->addWidget(jpegBox);
    controls->addLayout(buttons);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_lblFile);
    layout->addLayout(panes, 1);
    layout->addLayout(controls);

    connect(m_txtOther, &QLineEdit::editingFinished, this, [this] { rbJpeg_Click(4); });
    connect(m_sscEyeDropper, &QToolButton::clicked, this, [this] { sscEyeDropper_Click(); });
    connect(m_shpTransColour, &QToolButton::clicked, this, [this] { sscEyeDropper_Click(); });
    connect(m_ldGIF, &PicturePane::picked, this, [this](const QPoint &p) { ldGif_MouseUp(p); });
    connect(m_ldJPEG, &PicturePane::picked, this, [this] { ldjpeg_MouseUp(); });
    connect(m_chkTransparent, &QCheckBox::clicked, this, [this] { chkTransparent_Click(); });
    connect(m_btnSave[0], &QPushButton::clicked, this, [this] { btnSave_Click(0); });
    connect(m_btnSave[1], &QPushButton::clicked, this, [this] { btnSave_Click(1); });
    connect(btnClose, &QPushButton::clicked, this, [this] {
        m_tag = QStringLiteral("DONE");
        accept();
    });
    showSwatch();
}

QString frmImageProc::run(QWidget *parent, const QString &file)
{
    frmImageProc dialog(parent);
    dialog.LoadProcImage(file);
    dialog.exec();
    return dialog.savedFile();
}

void frmImageProc::LoadProcImage(const QString &file)
{
    m_lblFile->setText(file);
    m_session.LoadProcImage(file);
    if (const auto colour = m_session.transparent()) {
        m_colour = *colour;
        m_chkTransparent->setChecked(true);
    } else {
        m_chkTransparent->setChecked(false);
    }
    showSwatch();
    ShowImageInfo();
    // Room for both pictures, within the screen.
    QSize size = sizeHint().expandedTo(this->size());
    if (QScreen *screen = this->screen())
        size = size.boundedTo(screen->availableGeometry().size() * 0.95);
    resize(size);
}

void frmImageProc::ShowImageInfo()
{
    const bool loaded = m_session.loaded();
    m_ldGIF->setImage(loaded ? m_session.gifImage() : QImage());
    m_ldJPEG->setImage(loaded ? m_session.jpegImage() : QImage());
    const ImageInfo infos[2] = {loaded ? m_session.gifInfo() : ImageInfo(), loaded ? m_session.jpegInfo() : ImageInfo()};
    for (int i = 0; i < 2; ++i) {
        m_lblBitsPerPixel[i]->setText(QStringLiteral("Bits Per Pixel : ") + (loaded ? QString::number(infos[i].bitsPerPixel) : QString()));
        m_lbldisksize[i]->setText(QStringLiteral("Bytes : ") + (loaded ? QString::number(infos[i].bytes) : QString()));
    }
    m_lblWidth->setText(QStringLiteral("Width : ") + (loaded ? QString::number(infos[0].width) : QString()));
    m_lblHeight->setText(QStringLiteral("Height : ") + (loaded ? QString::number(infos[0].height) : QString()));
}

void frmImageProc::showSwatch()
{
    const QColor shown = m_colour.isValid() ? m_colour : palette().color(QPalette::Button);
    m_shpTransColour->setStyleSheet(QStringLiteral("QToolButton { background: %1; border: 1px solid #2d3845; }")
                                        .arg(shown.name()));
}

int frmImageProc::jpegLevel() const
{
    for (int i = 0; i < 4; ++i)
        if (m_rbJpeg[i]->isChecked())
            return kLevels[i];
    return static_cast<int>(Val(m_txtOther->text()));
}

void frmImageProc::rbJpeg_Click(int index)
{
    m_rbJpeg[index]->setChecked(true);
    m_txtOther->setEnabled(index == 4);
    if (index == 4 && m_txtOther->text().trimmed().isEmpty()) {
        m_txtOther->setFocus();
        return;
    }
    m_session.setJpegQuality(jpegLevel());
    ShowImageInfo();
}

void frmImageProc::sscEyeDropper_Click()
{
    m_pickArmed = true;
    m_sscEyeDropper->setChecked(true);
    setCursor(Qt::CrossCursor);
}

void frmImageProc::ldGif_MouseUp(const QPoint &pixel)
{
    if (!m_pickArmed)
        return;
    m_pickArmed = false;
    m_sscEyeDropper->setChecked(false);
    unsetCursor();
    // The colour as the palette holds it, without any transparency shown.
    m_colour = QColor(m_session.gifImage().pixel(pixel)).toRgb();
    m_colour.setAlpha(255);
    showSwatch();
    m_chkTransparent->setChecked(true);
    chkTransparent_Click();
}

void frmImageProc::ldjpeg_MouseUp()
{
    if (!m_pickArmed)
        return;
    platform::MsgBox(QStringLiteral("You cannot set a transparent color for JPEG images.  They do not support transparency."),
                     platform::Buttons::Ok, platform::Icon::Exclamation, QStringLiteral("No Transparency In JPEGs"));
}

void frmImageProc::chkTransparent_Click()
{
    if (!m_session.loaded())
        return;
    m_session.clearTransparency();
    if (m_chkTransparent->isChecked() && m_colour.isValid() && !m_session.MakegifTransparent(m_colour))
        core::ShowStatus(QStringLiteral("That colour is not in the GIF's palette."));
    ShowImageInfo();
}

void frmImageProc::btnSave_Click(int index)
{
    const QString saved = m_session.Save(index);
    if (!saved.isEmpty())
        m_saved = saved;
}

} // namespace qly::images::ui
