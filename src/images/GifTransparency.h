#pragma once

#include <QByteArray>
#include <QString>

#include "images/TransparentGif.h"

namespace qly::images {

// The palette the image form shows: 3 bytes a colour. ReadGifPalette sets it
// unless asked to be quiet; FindPaletteIndex and MakeGifTransparent look
// colours up in it.
QByteArray &PresentPalette();

// Index of the colour `triple` (red, green, blue) in `palette`; a byte that
// is an ASCII letter also matches the letter of the other case. 65535 when
// the colour is not there.
quint16 FindPaletteIndex(const QByteArray &triple, const QByteArray &palette);
quint16 FindPaletteIndex(const QByteArray &triple);

struct GifPalette {
    QByteArray transparent;  // the 3 bytes of the transparent colour, or empty
    QByteArray palette;      // the first image's own table, else the global one
    QString error;           // what was wrong with a file that is no sound GIF
};

// The palette and the transparent colour of the first image of `file`.
// Unless `quiet`, the palette becomes PresentPalette().
GifPalette ReadGifPalette(const QString &file, bool quiet = false);

// Makes the colour `colour` (0xBBGGRR) of PresentPalette() the transparent
// colour of the first image of `file`, which is rewritten as a GIF89a in
// place (a copy written and renamed over it). False, with nothing changed,
// when the colour is not in the palette, the file cannot be read (told) or
// cannot be written.
bool MakeGifTransparent(quint32 colour, const QString &file);

} // namespace qly::images
