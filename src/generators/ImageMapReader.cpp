#include "generators/ImageMapReader.h"

#include "markup/Attributes.h"

#include <QRegularExpression>

#include <cmath>

namespace qly::generators {

namespace {

// The tags named `name` in `text`, each from "<" to the next ">".
QStringList tagsNamed(const QString &text, const QString &name, qsizetype from = 0, qsizetype to = -1)
{
    QStringList tags;
    const QString open = QLatin1Char('<') + name;
    if (to < 0)
        to = text.size();
    qsizetype at = text.indexOf(open, from, Qt::CaseInsensitive);
    while (at >= 0 && at < to) {
        const qsizetype after = at + open.size();
        const bool wholeName = after >= text.size() || !text.at(after).isLetterOrNumber();
        const qsizetype end = text.indexOf(QLatin1Char('>'), after);
        if (end < 0)
            break;
        if (wholeName)
            tags << text.mid(at, end - at + 1);
        at = text.indexOf(open, end, Qt::CaseInsensitive);
    }
    return tags;
}

QList<int> numbers(const QString &coords, bool &ok)
{
    static const QRegularExpression separators(QStringLiteral("[,\\s]+"));
    QList<int> list;
    ok = true;
    const QStringList parts = coords.split(separators, Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        bool good = false;
        const double value = part.toDouble(&good);
        if (!good || !std::isfinite(value) || std::fabs(value) > 100000) {
            ok = false;
            return {};
        }
        list << int(std::lround(value));
    }
    return list;
}

// One <AREA> as a region; false with the reason when it cannot be one.
bool readArea(const QString &tag, double tpp, MapRegion &region, QString &why)
{
    const QString shape = markup::GetAttributeValue(tag, QStringLiteral("SHAPE")).toLower();
    bool ok = false;
    const QList<int> c = numbers(markup::GetAttributeValue(tag, QStringLiteral("COORDS")), ok);
    region.url = markup::GetAttributeValue(tag, QStringLiteral("HREF"));
    region.target = markup::GetAttributeValue(tag, QStringLiteral("TARGET"));
    auto tw = [tpp](int pixels) { return int(std::lround(pixels * tpp)); };
    if (!ok) {
        why = QStringLiteral("its coordinates are not numbers");
        return false;
    }
    if (shape == QLatin1String("rect") || shape == QLatin1String("rectangle") || shape.isEmpty()) {
        if (c.size() != 4) {
            why = QStringLiteral("a rectangle needs four coordinates");
            return false;
        }
        region.shape = RegionShape::Rectangle;
        region.left = tw(std::min(c[0], c[2]));
        region.top = tw(std::min(c[1], c[3]));
        region.width = tw(std::abs(c[2] - c[0]));
        region.height = tw(std::abs(c[3] - c[1]));
        return true;
    }
    if (shape == QLatin1String("circle") || shape == QLatin1String("circ")) {
        if (c.size() != 3 || c[2] < 0) {
            why = QStringLiteral("a circle needs a centre and a radius");
            return false;
        }
        region.shape = RegionShape::Circle;
        region.left = tw(c[0] - c[2]);
        region.top = tw(c[1] - c[2]);
        region.width = region.height = tw(2 * c[2]);
        return true;
    }
    if (shape == QLatin1String("polygon") || shape == QLatin1String("poly")) {
        QList<QPoint> points;
        for (qsizetype i = 0; i + 1 < c.size(); i += 2)
            points << QPoint(tw(c[i]), tw(c[i + 1]));
        if (points.size() > 1 && points.first() == points.last())
            points.removeLast();
        if (c.size() % 2 != 0 || points.size() < 3) {
            why = QStringLiteral("a polygon needs at least three points");
            return false;
        }
        if (points.size() > ImageMapModel::MaxPolygonPoints) {
            why = QStringLiteral("a polygon may have up to %1 points").arg(ImageMapModel::MaxPolygonPoints);
            return false;
        }
        region.shape = RegionShape::Polygon;
        region.points = points;
        fitPolygonBox(region);
        return true;
    }
    why = QStringLiteral("the shape \"%1\" is not a rectangle, circle or polygon").arg(shape);
    return false;
}

} // namespace

bool ReadMapMarkup(const QString &text, ImageMapModel &model, QStringList &problems)
{
    problems.clear();
    MapValues values;
    QString imageSource;
    const QStringList images = tagsNamed(text, QStringLiteral("IMG"));
    QString wanted;
    for (const QString &img : images) {
        QString useMap = markup::GetAttributeValue(img, QStringLiteral("USEMAP"));
        if (useMap.isEmpty())
            continue;
        wanted = useMap.startsWith(QLatin1Char('#')) ? useMap.mid(1) : useMap;
        imageSource = markup::GetAttributeValue(img, QStringLiteral("SRC"));
        values.altText = markup::GetAttributeValue(img, QStringLiteral("ALT"));
        values.imgHeight = markup::GetAttributeValue(img, QStringLiteral("HEIGHT"));
        values.imgWidth = markup::GetAttributeValue(img, QStringLiteral("WIDTH"));
        values.horzSpace = markup::GetAttributeValue(img, QStringLiteral("HSPACE"));
        values.vertSpace = markup::GetAttributeValue(img, QStringLiteral("VSPACE"));
        values.borderWidth = markup::GetAttributeValue(img, QStringLiteral("BORDER"));
        values.align = markup::GetAttributeValue(img, QStringLiteral("ALIGN"));
        break;
    }

    // The <MAP> the image uses, else the first.
    qsizetype mapStart = -1;
    QString mapName;
    for (const QString &map : tagsNamed(text, QStringLiteral("MAP"))) {
        const QString name = markup::GetAttributeValue(map, QStringLiteral("NAME"));
        if (mapStart < 0 || (!wanted.isEmpty() && name.compare(wanted, Qt::CaseInsensitive) == 0)) {
            mapStart = text.indexOf(map);
            mapName = name;
            if (wanted.isEmpty() || name.compare(wanted, Qt::CaseInsensitive) == 0)
                break;
        }
    }
    if (mapStart < 0) {
        problems << QStringLiteral("The text holds no <MAP> element.");
        return false;
    }
    qsizetype mapEnd = text.indexOf(QStringLiteral("</MAP"), mapStart, Qt::CaseInsensitive);
    if (mapEnd < 0) {
        problems << QStringLiteral("The <MAP> element has no </MAP>; the areas up to the end are read.");
        mapEnd = text.size();
    }

    ImageMapModel read(model.twipsPerPixel());
    int number = 0;
    for (const QString &area : tagsNamed(text, QStringLiteral("AREA"), mapStart, mapEnd)) {
        ++number;
        MapRegion region;
        QString why;
        if (!readArea(area, model.twipsPerPixel(), region, why)) {
            problems << QStringLiteral("Area %1 is left out: %2.").arg(number).arg(why);
            continue;
        }
        if (read.isFull()) {
            problems << QStringLiteral("Area %1 is left out: a map holds up to %2 hotspots.")
                            .arg(number).arg(ImageMapModel::MaxRegions);
            continue;
        }
        read.addRegion(region);
    }
    if (read.RegionCount() == 0) {
        problems.prepend(QStringLiteral("The <MAP> element holds no hotspot that can be read."));
        return false;
    }
    values.mapName = mapName.isEmpty() ? wanted : mapName;
    read.values = values;
    read.imagePath = imageSource;
    read.mapChanged = false;
    model = read;
    return true;
}

QList<int> RegionsOutside(const ImageMapModel &model, const QSize &pixels)
{
    const double tpp = model.twipsPerPixel();
    const QRect picture(0, 0, int(std::lround(pixels.width() * tpp)), int(std::lround(pixels.height() * tpp)));
    QList<int> outside;
    for (int n = 1; n <= model.RegionCount(); ++n) {
        const QRect box = model.region(n).bounds();
        if (box.left() < picture.left() || box.top() < picture.top()
            || box.left() + box.width() > picture.width() || box.top() + box.height() > picture.height())
            outside << n;
    }
    return outside;
}

} // namespace qly::generators
