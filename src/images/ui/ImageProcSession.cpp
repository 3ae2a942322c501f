#include "images/ui/ImageProcSession.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "images/GifTransparency.h"
#include "platform/Prompts.h"

#include <QFile>

namespace qly::images::ui {

ImageProcSession::ImageProcSession(const QString &directory)
    : m_directory(directory.isEmpty() ? core::ProgramDirectory() : directory)
{
}

ImageProcSession::~ImageProcSession()
{
    QFile::remove(gifPath());
    QFile::remove(jpegPath());
}

QString ImageProcSession::gifPath() const
{
    return core::JoinPath(m_directory, QStringLiteral("qntmppic.gif"));
}

QString ImageProcSession::jpegPath() const
{
    return core::JoinPath(m_directory, QStringLiteral("qntmppic.jpg"));
}

bool ImageProcSession::LoadProcImage(const QString &file)
{
    m_file = file;
    m_transparent.reset();
    m_originalGif.clear();
    QFile::remove(gifPath());
    QFile::remove(jpegPath());
    m_picture = LoadImage(file);
    if (m_picture.isNull())
        return false;
    const QString ext = core::GetFileExt(file).toLower();
    QByteArray bytes;
    if (ext == QLatin1String("gif") && core::readWholeFile(file, bytes).ok())
        m_originalGif = bytes;
    bool ok = writeGifSide();
    if (ext == QLatin1String("jpg") || ext == QLatin1String("jpeg"))
        ok = core::copyFileAtomically(file, jpegPath()).ok() && ok;
    else
        ok = SaveJpeg(m_picture, jpegPath(), m_quality) && ok;
    readTransparency();
    return ok;
}

bool ImageProcSession::writeGifSide()
{
    if (!m_originalGif.isEmpty())
        return core::writeFileAtomically(gifPath(), m_originalGif).ok();
    return SaveGif(m_picture, gifPath());
}

void ImageProcSession::readTransparency()
{
    const GifPalette palette = ReadGifPalette(gifPath());
    m_transparent.reset();
    if (palette.transparent.size() == 3)
        m_transparent = QColor(quint8(palette.transparent[0]), quint8(palette.transparent[1]),
                               quint8(palette.transparent[2]));
}

bool ImageProcSession::setJpegQuality(int quality)
{
    m_quality = quality;
    if (!loaded())
        return false;
    core::ShowStatus(QStringLiteral("Saving..."));
    const bool ok = SaveJpeg(m_picture, jpegPath(), quality);
    core::ShowStatus(QStringLiteral("Loading..."));
    return ok;
}

bool ImageProcSession::MakegifTransparent(const QColor &colour)
{
    if (!loaded())
        return false;
    ReadGifPalette(gifPath());
    const quint32 value = quint32(colour.red()) | (quint32(colour.green()) << 8) | (quint32(colour.blue()) << 16);
    const bool ok = MakeGifTransparent(value, gifPath());
    readTransparency();
    return ok;
}

bool ImageProcSession::clearTransparency()
{
    const bool ok = loaded() && writeGifSide();
    readTransparency();
    return ok;
}

QString ImageProcSession::Save(int index)
{
    platform::FileRequest request;
    request.title = core::versionCaption() + QStringLiteral(" - Save Graphic As");
    request.filter = index == 0 ? QStringLiteral("gif (*.gif)|*.gif|JPEG (*.JPG)|*.jpg|All Files (*.*)|*.*")
                                : QStringLiteral("JPEG (*.jpg)|*.jpg|gif (*.gif)|*.gif|All Files (*.*)|*.*");
    request.defaultSuffix = index == 0 ? QStringLiteral("gif") : QStringLiteral("jpg");
    request.promptOverwrite = true;
    const platform::FileAnswer answer = platform::prompts().saveFile(request);
    if (!answer.accepted())
        return {};
    const QString from = index == 0 ? gifPath() : jpegPath();
    const QString target = answer.files.first();
    if (!core::copyFileAtomically(from, target).ok())
        return {};
    return target;
}

} // namespace qly::images::ui
