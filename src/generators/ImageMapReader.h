#pragma once

#include "generators/ImageMapModel.h"

#include <QSize>
#include <QString>
#include <QStringList>

namespace qly::generators {

// Reads a map back from markup: the <IMG ... USEMAP> element (when the text
// holds one) and the <MAP> block whose name it uses, or the first <MAP>.
// Areas beyond the fifteenth, areas of unknown shape and areas without
// usable coordinates are left out and named in `problems`. Pixel
// coordinates become twips at the model's scale. Returns false, with the
// reason in `problems`, when no <MAP> with an area is found; the model is
// then left as it was.
bool ReadMapMarkup(const QString &text, ImageMapModel &model, QStringList &problems);

// The numbers of the regions that reach outside a picture of `pixels`.
QList<int> RegionsOutside(const ImageMapModel &model, const QSize &pixels);

} // namespace qly::generators
