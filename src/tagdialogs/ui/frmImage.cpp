#include "tagdialogs/ui/frmImage.h"

#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/Links.h"
#include "platform/Prompts.h"
#include "tagdialogs/ImageModel.h"
#include "tagdialogs/TagText.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::tagdialogs::ui {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

const char kPictures[] = "Pictures (*.gif *.jpg *.jpeg *.png *.webp *.svg *.bmp)|*.gif;*.jpg;*.jpeg;*.png;*.webp;*.svg;*.bmp"
                         "|All Files (*.*)|*.*";

} // namespace

frmImage::frmImage(QWidget *parent)
    : TagDialog(std::make_unique<ImageModel>(), S("Image"), parent)
{
    setAcceptDrops(true);
    auto *row = new QHBoxLayout;
    auto *form = new QFormLayout;
    m_src = file(form, S("&Picture:"), S("src"), "cmbSrc", S(kPictures), S("Graphics"), S("Images"));
    file(form, S("&Low-res picture:"), S("lowsrc"), "cmbLowSrc", S(kPictures), S("Graphics"), S("Low-Res Images"));
    text(form, S("&Alternate text:"), S("alt"), "txtAlt");
    auto *sizeRow = new QHBoxLayout;
    m_width = text(nullptr, QString(), S("width"), "txtWidth");
    m_height = text(nullptr, QString(), S("height"), "txtHeight");
    auto *lblHeight = new QLabel(S("H&eight:"), this);
    lblHeight->setBuddy(m_height);
    auto *actual = new QPushButton(S("Actual &size"), this);
    actual->setObjectName(S("cmdActualSize"));
    actual->setAutoDefault(false);
    sizeRow->addWidget(m_width);
    sizeRow->addWidget(lblHeight);
    sizeRow->addWidget(m_height);
    sizeRow->addWidget(actual);
    form->addRow(S("&Width:"), sizeRow);
    if (auto *l = qobject_cast<QLabel *>(form->labelForField(sizeRow)))
        l->setBuddy(m_width);
    auto *spaceRow = new QHBoxLayout;
    QLineEdit *hspace = text(nullptr, QString(), S("hspace"), "txtHSpace");
    QLineEdit *vspace = text(nullptr, QString(), S("vspace"), "txtVSpace");
    auto *lblV = new QLabel(S("&Vertical:"), this);
    lblV->setBuddy(vspace);
    spaceRow->addWidget(hspace);
    spaceRow->addWidget(lblV);
    spaceRow->addWidget(vspace);
    form->addRow(S("Hori&zontal space:"), spaceRow);
    if (auto *l = qobject_cast<QLabel *>(form->labelForField(spaceRow)))
        l->setBuddy(hspace);
    QLineEdit *border = text(form, S("&Border:"), S("border"), "txtBorder");
    for (QLineEdit *e : {m_width, m_height, hspace, vspace, border})
        e->setValidator(new QIntValidator(0, 99999, e));
    combo(form, S("Ali&gn:"), S("align"), "cmbAlign", ImageModel::alignments(), false);
    file(form, S("Lin&k to:"), S("link"), "cmbLink", S("All Files (*.*)|*.*"), S("Documents"), S("Links"));
    row->addLayout(form, 1);

    auto *side = new QVBoxLayout;
    m_preview = new QLabel(this);
    m_preview->setObjectName(S("picPreview"));
    m_preview->setFixedSize(180, 180);
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setWordWrap(true);
    m_preview->setFrameShape(QFrame::StyledPanel);
    m_facts = new QLabel(this);
    m_facts->setObjectName(S("lblFacts"));
    m_facts->setWordWrap(true);
    m_facts->setMaximumWidth(180);
    side->addWidget(m_preview);
    side->addWidget(m_facts);
    side->addStretch();
    row->addLayout(side);
    connect(actual, &QPushButton::clicked, this, [this] {
        if (m_actual.isValid()) {
            m_width->setText(QString::number(m_actual.width()));
            m_height->setText(QString::number(m_actual.height()));
        }
    });
    finish(row);
}

QString frmImage::pictureFile(const QString &source)
{
    QString s = source.trimmed();
    if (s.startsWith(QLatin1String("file:"), Qt::CaseInsensitive))
        s = markup::FileUrlToPath(s);
    if (s.isEmpty() || s.contains(S("://")))
        return s;
    QString dir;
    if (documents::Document *doc = documents::Workspace::CurrentDocument())
        dir = QFileInfo(doc->LocalFileName).absolutePath();
    return markup::ResolveRelativePath(s, dir);
}

void frmImage::changed()
{
    TagDialog::changed();
    showPicture();
}

void frmImage::showPicture()
{
    const QString source = m_src->currentText().trimmed();
    if (source == m_shown)
        return;
    m_shown = source;
    m_actual = QSize();
    m_preview->setPixmap(QPixmap());
    const QString path = pictureFile(source);
    if (source.isEmpty()) {
        m_preview->setText(S("No picture chosen"));
        m_facts->clear();
        return;
    }
    if (path.contains(S("://"))) {
        m_preview->setText(S("A picture on the web is not shown here."));
        m_facts->clear();
        return;
    }
    const QFileInfo info(path);
    if (!info.isFile()) {
        m_preview->setText(S("The file does not exist."));
        m_facts->setText(path);
        return;
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    QImage image;
    if (size.isValid()) {
        // Drawn at the screen's own pixels, so a large scale stays sharp.
        const qreal ratio = devicePixelRatioF();
        const QSize fit = size.scaled((m_preview->size() - QSize(8, 8)) * ratio, Qt::KeepAspectRatio);
        reader.setScaledSize(fit.width() < size.width() * ratio ? fit : size * ratio);
        image = reader.read();
        image.setDevicePixelRatio(ratio);
    }
    const QString sizeText = FileSizeText(info.size());
    if (image.isNull()) {
        m_preview->setText(S("This file is not a picture that can be read (%1).").arg(reader.errorString()));
        m_facts->setText(info.fileName() + S(", ") + sizeText);
        return;
    }
    m_actual = size;
    m_preview->setPixmap(QPixmap::fromImage(image));
    m_facts->setText(S("%1, %2\n%3 x %4 pixels").arg(info.fileName(), sizeText).arg(size.width()).arg(size.height()));
    // A new picture brings its own size unless one was typed.
    if (m_width->text().isEmpty() && m_height->text().isEmpty()) {
        m_width->setText(QString::number(size.width()));
        m_height->setText(QString::number(size.height()));
    }
}

void frmImage::offerFile(const QString &path)
{
    const platform::Answer a = platform::MsgBox(S("Would you like to use ") + path + S(" as your image ?"),
                                                platform::Buttons::YesNo, platform::Icon::Question);
    if (a == platform::Answer::Yes)
        m_src->setEditText(path);
}

void frmImage::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void frmImage::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && urls.first().isLocalFile()) {
        event->acceptProposedAction();
        offerFile(urls.first().toLocalFile());
    }
}

} // namespace qly::tagdialogs::ui
