#include "generators/ui/frmImageMap.h"

#include "core/Paths.h"
#include "core/Settings.h"
#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "generators/ImageMapReader.h"
#include "generators/ImageMapRules.h"
#include "generators/ui/ImageMapCanvas.h"
#include "generators/ui/ImageMapIcons.h"
#include "generators/ui/frmIMAddURL.h"
#include "generators/ui/frmIMOptions.h"
#include "generators/ui/frmIMRightClickInfo.h"
#include "generators/ui/frmIMapName.h"
#include "markup/Attributes.h"
#include "markup/Links.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QActionGroup>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::generators::ui {

namespace {

const QString kCreating = QStringLiteral("Creating ImageMap");

// Pictures a web browser shows.
bool webFormat(const QByteArray &format)
{
    static const QList<QByteArray> formats = {"gif", "jpeg", "jpg", "png", "webp", "svg", "svgz"};
    return formats.contains(format.toLower());
}

void tell(const QString &title, const QString &text)
{
    platform::MsgBox(text, platform::Buttons::Ok, platform::Icon::Exclamation, title);
}

} // namespace

frmImageMap::frmImageMap(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags | Qt::WindowMaximizeButtonHint)
{
    setObjectName(QStringLiteral("frmImageMap"));
    setWindowTitle(QStringLiteral("Client-Side Image Map"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    auto *layout = new QVBoxLayout(this);

    auto *pictureRow = new QHBoxLayout;
    pictureRow->addWidget(new QLabel(QStringLiteral("Picture:"), this));
    m_txtURL = new QLineEdit(this);
    m_txtURL->setObjectName(QStringLiteral("txtURL"));
    m_txtURL->setReadOnly(true);
    pictureRow->addWidget(m_txtURL, 1);
    auto *browse = new QToolButton(this);
    browse->setObjectName(QStringLiteral("imgFileSelect"));
    browse->setText(QStringLiteral("..."));
    browse->setToolTip(QStringLiteral("Choose the picture"));
    connect(browse, &QToolButton::clicked, this, &frmImageMap::LoadNewImage);
    pictureRow->addWidget(browse);
    layout->addLayout(pictureRow);

    auto *bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("tlbRegionShape"));
    layout->addWidget(bar);

    m_canvas = new ImageMapCanvas(m_model, this);
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("picContainer"));
    m_scroll->setWidget(m_canvas);
    m_scroll->setAlignment(Qt::AlignCenter);
    m_scroll->setMinimumSize(480, 320);
    layout->addWidget(m_scroll, 1);
    buildToolbar(bar);

    auto *infoRow = new QHBoxLayout;
    infoRow->addWidget(new QLabel(QStringLiteral("Hotspot URL:"), this));
    m_txtRegionURL = new QLineEdit(this);
    m_txtRegionURL->setObjectName(QStringLiteral("txtRegionURL"));
    m_txtRegionURL->setReadOnly(true);
    infoRow->addWidget(m_txtRegionURL, 1);
    m_lblCoords = new QLabel(this);
    m_lblCoords->setObjectName(QStringLiteral("lblCoords"));
    m_lblCoords->setMinimumWidth(m_lblCoords->fontMetrics().horizontalAdvance(QStringLiteral("0000 , 0000")));
    infoRow->addWidget(m_lblCoords);
    layout->addLayout(infoRow);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    core::ui::addHelpButton(buttons, this, QStringLiteral("cmdHelp"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        if (CompileMap())
            QDialog::done(Accepted);
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &frmImageMap::reject);
    layout->addWidget(buttons);

    connect(m_canvas, &ImageMapCanvas::regionDrawn, this, &frmImageMap::addDrawnRegion);
    connect(m_canvas, &ImageMapCanvas::currentChanged, this, &frmImageMap::showCurrent);
    connect(m_canvas, &ImageMapCanvas::rightClicked, this, &frmImageMap::rightClick);
    connect(m_canvas, &ImageMapCanvas::pointerMoved, this, [this](const QPoint &p) {
        m_lblCoords->setText(QStringLiteral("%1 , %2").arg(p.x()).arg(p.y()));
    });
    connect(m_canvas, &ImageMapCanvas::polygonStateChanged, this, [this](bool drawing) {
        for (QAction *tool : m_tools)
            tool->setEnabled(!drawing);
        m_delete->setEnabled(!drawing && m_canvas->currentRegion() > 0);
    });
    frmIMOptions::writeDefaultsToNewConfiguration();
    UpdateColours();
    showCurrent(-1);
    resize(760, 600);
}

void frmImageMap::buildToolbar(QToolBar *bar)
{
    auto *group = new QActionGroup(this);
    const char *names[4] = {"Select", "Rectangle", "Circle", "Polygon"};
    const char *tips[4] = {"Select, move and resize hotspots (right click: information)",
                           "Draw a rectangle", "Draw a circle",
                           "Draw a polygon: click each corner, right click to close it"};
    for (int i = 0; i < 4; ++i) {
        m_tools[i] = bar->addAction(regionToolIcon(i + 1), QString::fromLatin1(names[i]));
        m_tools[i]->setObjectName(QStringLiteral("tlbRegionShape(%1)").arg(i + 1));
        m_tools[i]->setToolTip(QString::fromLatin1(tips[i]));
        m_tools[i]->setCheckable(true);
        group->addAction(m_tools[i]);
        connect(m_tools[i], &QAction::triggered, this, [this, i] { setTool(i + 1); });
    }
    m_tools[0]->setChecked(true);
    bar->addSeparator();
    m_delete = bar->addAction(regionToolIcon(5), QStringLiteral("Delete"));
    m_delete->setObjectName(QStringLiteral("tlbDelete"));
    m_delete->setToolTip(QStringLiteral("Delete the selected hotspot"));
    connect(m_delete, &QAction::triggered, this, &frmImageMap::DeleteCurrentRegion);
    bar->addSeparator();
    QAction *in = bar->addAction(QStringLiteral("Zoom In"), this, [this] { zoomBy(2.0); });
    in->setShortcut(QKeySequence::ZoomIn);
    QAction *out = bar->addAction(QStringLiteral("Zoom Out"), this, [this] { zoomBy(0.5); });
    out->setShortcut(QKeySequence::ZoomOut);
    bar->addAction(QStringLiteral("Actual Size"), this, [this] { zoomBy(1.0 / m_canvas->zoom()); });
    m_lblZoom = new QLabel(this);
    m_lblZoom->setObjectName(QStringLiteral("lblZoom"));
    bar->addWidget(m_lblZoom);
    m_lblZoom->setText(QStringLiteral(" 100 % "));
    bar->addSeparator();
    bar->addAction(QStringLiteral("Colours..."), this, [this] {
        if (frmIMOptions::edit(this))
            UpdateColours();
    });
}

void frmImageMap::setTool(int tool)
{
    if (m_canvas->drawingPolygon() || tool < 1 || tool > 4)
        return;
    m_tools[tool - 1]->setChecked(true);
    m_canvas->setTool(ImageMapCanvas::Tool(tool));
}

void frmImageMap::zoomBy(double factor)
{
    setZoom(m_canvas->zoom() * factor);
}

void frmImageMap::setZoom(double zoom)
{
    m_canvas->setZoom(zoom);
    m_lblZoom->setText(QStringLiteral(" %1 % ").arg(qRound(m_canvas->zoom() * 100)));
}

void frmImageMap::UpdateColours()
{
    m_canvas->setColours(frmIMOptions::standardColour(), frmIMOptions::selectedColour());
}

void frmImageMap::showCurrent(int number)
{
    m_txtRegionURL->setText(number > 0 ? m_model.region(number).url : QString());
    m_delete->setEnabled(number > 0 && !m_canvas->drawingPolygon());
}

bool frmImageMap::LoadImageFile(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    if (!QFileInfo(path).isFile()) {
        tell(kCreating, QStringLiteral("This image file could not be found."));
        return false;
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    if (format.isEmpty() || !reader.canRead()) {
        tell(kCreating, QStringLiteral("Error opening image file.\nThis file is not a valid image file or is "
                                       "not supported by Quillery."));
        return false;
    }
    if (!webFormat(format)) {
        tell(QStringLiteral("Incorrect Image Format"),
             QStringLiteral("This image is not a GIF, JPEG, PNG, WebP or SVG picture and cannot be viewed using "
                            "WWW browsers. Please try another image."));
        return false;
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        tell(kCreating, QStringLiteral("Error loading image file '") + name + QStringLiteral("'."));
        return false;
    }
    m_model.imagePath = QFileInfo(path).absoluteFilePath();
    m_canvas->setImage(image);
    m_txtURL->setText(ImageLocationText(m_model.imagePath));
    m_model.values.imgWidth = QString::number(image.width());
    m_model.values.imgHeight = QString::number(image.height());
    showCurrent(-1);
    TellRegionsOutside(RegionsOutside(m_model, image.size()));
    return true;
}

void frmImageMap::LoadNewImage()
{
    platform::FileRequest request;
    request.title = QStringLiteral("Creating ImageMap - Select Image");
    request.directory = core::GetFileLocation(QStringLiteral("Graphics"));
    const bool jpegFirst =
        core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Last Picture Type")).compare(
            QStringLiteral("JPG"), Qt::CaseInsensitive) == 0;
    const QString web = QStringLiteral("Web Pictures (*.gif *.jpg *.jpeg *.png *.webp *.svg)|"
                                       "*.gif;*.jpg;*.jpeg;*.png;*.webp;*.svg|");
    request.filter = web + (jpegFirst ? QStringLiteral("JPEG (*.jpg)|*.jpg|GIF (*.gif)|*.gif|All Files (*.*)|*.*")
                                      : QStringLiteral("GIF (*.GIF)|*.gif|JPEG (*.JPG)|*.jpg|All Files (*.*)|*.*"));
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (answer.accepted())
        LoadImageFile(answer.files.first());
}

void frmImageMap::takeMap(const ImageMapModel &map, const QString &documentFolder)
{
    const QString picture = map.imagePath;
    m_model = map;
    m_model.imagePath.clear();
    if (!picture.isEmpty()) {
        const QString local = markup::FileUrlToPath(picture);
        const QString path = documentFolder.isEmpty() ? local : markup::ResolveRelativePath(local, documentFolder);
        const MapValues values = m_model.values;
        if (LoadImageFile(path))
            m_model.values = values;   // the page's own sizes stand
    }
    m_model.mapChanged = false;
    m_canvas->update();
}

QString frmImageMap::mapText() const
{
    const QString link = markup::RelativeLink(m_model.imagePath);
    return m_model.WriteMapMarkup(link.isEmpty() ? m_model.imagePath : link);
}

bool frmImageMap::CompileMap()
{
    if (!CheckCanCompile(m_model))
        return false;
    if (!frmIMapName::edit(this, m_model.values))
        return false;
    markup::InsertMarkup(mapText(), QString(), true);
    m_model.mapChanged = false;
    return true;
}

void frmImageMap::done(int result)
{
    if (result == Rejected) {
        switch (ConfirmCompile(m_model)) {
        case CompileChoice::Stay:
            return;
        case CompileChoice::Compile:
            if (!CompileMap())
                return;
            break;
        case CompileChoice::Discard:
            break;
        }
    }
    QDialog::done(result);
}

void frmImageMap::addDrawnRegion(const MapRegion &region)
{
    MapRegion r = region;
    if (!frmIMAddURL::ask(this, r.url, r.target)) {
        m_canvas->update();
        return;
    }
    const int number = m_model.addRegion(r);
    m_canvas->setCurrentRegion(number);
}

void frmImageMap::rightClick(int number)
{
    if (number < 1) {
        if (m_model.RegionCount() == 0)
            return;
        frmIMRightClickInfo::edit(this, m_model.values.mapName, nullptr, nullptr,
                                  QStringLiteral("%1 hotspot(s) on %2").arg(m_model.RegionCount())
                                      .arg(QFileInfo(m_model.imagePath).fileName()));
        return;
    }
    MapRegion &r = m_model.region(number);
    QString url = r.url, target = r.target;
    if (frmIMRightClickInfo::edit(this, m_model.values.mapName, &url, &target,
                                  QStringLiteral("Hotspot %1").arg(number))) {
        if (url != r.url || target != r.target)
            m_model.mapChanged = true;
        r.url = url;
        r.target = target;
        showCurrent(number);
    }
}

void frmImageMap::DeleteCurrentRegion()
{
    const int number = m_canvas->currentRegion();
    if (number < 1 || !ConfirmDeleteRegion())
        return;
    m_model.deleteRegion(number);
    m_canvas->setCurrentRegion(-1);
}

void frmImageMap::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void frmImageMap::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && urls.first().isLocalFile())
        LoadImageFile(urls.first().toLocalFile());
}

void frmImageMap::showFor(QWidget *parent)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    auto *dialog = new frmImageMap(parent);
    const QString selection = doc->txtDoc().SelText();
    const QString folder = doc->LocalFileName.isEmpty() ? QString() : core::DirectoryOf(doc->LocalFileName);
    if (!selection.contains(QStringLiteral("<MAP"), Qt::CaseInsensitive)) {
        // A selected picture becomes the picture of the map.
        const qsizetype img = selection.indexOf(QStringLiteral("<IMG"), 0, Qt::CaseInsensitive);
        const QString src = img < 0 ? QString()
                                    : markup::GetAttributeValue(selection.mid(img), QStringLiteral("SRC"));
        if (!src.isEmpty()) {
            const QString local = markup::FileUrlToPath(src);
            dialog->LoadImageFile(folder.isEmpty() ? local : markup::ResolveRelativePath(local, folder));
        }
    } else {
        ImageMapModel map;
        QStringList problems;
        const bool read = ReadMapMarkup(selection, map, problems);
        if (!problems.isEmpty())
            tell(QStringLiteral("Client-Side Image Map"), problems.join(QLatin1Char('\n')));
        if (read)
            dialog->takeMap(map, folder);
    }
    dialog->show();
}

} // namespace qly::generators::ui
