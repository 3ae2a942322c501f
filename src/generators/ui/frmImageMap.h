#pragma once

#include "generators/ImageMapModel.h"

#include <QDialog>

class QAction;
class QLabel;
class QLineEdit;
class QScrollArea;
class QToolBar;

namespace qly::generators::ui {

class ImageMapCanvas;

// "Client-Side Image Map": a picture on which up to 15 hotspots are drawn;
// OK writes the <IMG USEMAP> element and the <MAP> into the document.
class frmImageMap final : public QDialog
{
    Q_OBJECT
public:
    explicit frmImageMap(QWidget *parent = nullptr);

    // Opens the editor for the current document; a selection that holds a
    // map is read back into it. Nothing without a document.
    static void showFor(QWidget *parent);

    ImageMapModel &model() { return m_model; }
    ImageMapCanvas *canvas() const { return m_canvas; }
    // Loads a picture; on failure tells why and keeps the one shown.
    bool LoadImageFile(const QString &path);
    // Takes a map read from markup; `documentFolder` resolves its picture.
    void takeMap(const ImageMapModel &map, const QString &documentFolder);
    // The finished text for the map, as OK inserts it.
    QString mapText() const;
    // Asks the map's values (frmIMapName) and inserts the map; false when
    // nothing was written.
    bool CompileMap();
    void setTool(int tool);
    void setZoom(double zoom);
    void DeleteCurrentRegion();
    void UpdateColours();

    void done(int result) override;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void LoadNewImage();
    void addDrawnRegion(const MapRegion &region);
    void rightClick(int number);
    void showCurrent(int number);
    void zoomBy(double factor);
    void buildToolbar(QToolBar *bar);

    ImageMapModel m_model;
    ImageMapCanvas *m_canvas = nullptr;
    QScrollArea *m_scroll = nullptr;
    QLineEdit *m_txtURL = nullptr;
    QLineEdit *m_txtRegionURL = nullptr;
    QLabel *m_lblCoords = nullptr;
    QLabel *m_lblZoom = nullptr;
    QAction *m_tools[4] = {};
    QAction *m_delete = nullptr;
    bool m_compiled = false;
};

} // namespace qly::generators::ui
