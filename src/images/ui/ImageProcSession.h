#pragma once

#include "images/ui/ImageCodec.h"

#include <QColor>
#include <QImage>
#include <QString>
#include <optional>

namespace qly::images::ui {

// The work behind the image-processing dialog: one picture kept twice, as a
// GIF and as a JPEG, in the temporary files "qntmppic.gif" and
// "qntmppic.jpg" of a directory (the program's), which go when the session
// ends.
class ImageProcSession
{
public:
    explicit ImageProcSession(const QString &directory = {});
    ~ImageProcSession();
    ImageProcSession(const ImageProcSession &) = delete;
    ImageProcSession &operator=(const ImageProcSession &) = delete;

    // A GIF is taken as it is and the JPEG made from it, a JPEG the other way
    // round; any other picture is encoded both ways. False, with both sides
    // empty, when the file does not load.
    bool LoadProcImage(const QString &file);
    const QString &file() const { return m_file; }
    bool loaded() const { return !m_picture.isNull(); }

    QString gifPath() const;
    QString jpegPath() const;
    QImage gifImage() const { return LoadImage(gifPath()); }
    QImage jpegImage() const { return LoadImage(jpegPath()); }
    ImageInfo gifInfo() const { return FileInformation(gifPath()); }
    ImageInfo jpegInfo() const { return FileInformation(jpegPath()); }

    // The transparent colour of the GIF side, when it has one.
    std::optional<QColor> transparent() const { return m_transparent; }

    // The JPEG side again, with this quality (0-100).
    bool setJpegQuality(int quality);
    int jpegQuality() const { return m_quality; }
    // Marks `colour` transparent on the GIF side. False when the colour is
    // not in its palette.
    bool MakegifTransparent(const QColor &colour);
    // The GIF side as it was loaded, without a colour made transparent here.
    bool clearTransparency();

    // Asks for a name and copies the GIF (index 0) or JPEG (1) side there.
    // The chosen name, or empty.
    QString Save(int index);

private:
    void readTransparency();
    bool writeGifSide();

    QString m_directory;
    QString m_file;
    QImage m_picture;
    QByteArray m_originalGif;     // the loaded file's bytes when it is a GIF
    std::optional<QColor> m_transparent;
    int m_quality = 80;
};

} // namespace qly::images::ui
