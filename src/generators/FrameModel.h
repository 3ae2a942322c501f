#pragma once

#include <QString>
#include <vector>

namespace qly::generators {

// The frame editor's model: the frames of a page as rectangles on a
// miniature screen, in twips, with each frame's properties. The layout has
// two levels: an outer set of columns (or rows), each of which may be
// divided once the other way. The markup is made by walking the
// rectangles by adjacency (FrameMarkup).
class FrameModel
{
public:
    enum class Orientation { Cols, Rows };

    // The screen's size in twips.
    static constexpr float ScreenWidth = 6000;
    static constexpr float ScreenHeight = 4500;

    struct Rect {
        float left = 0;
        float top = 0;
        float width = ScreenWidth;
        float height = ScreenHeight;
        float right() const { return left + width; }
        float bottom() const { return top + height; }
    };

    struct Frame {
        Rect rect;
        QString attributes;   // the attribute text of its <FRAME> line
        QString flags = QStringLiteral("100");   // scrolling code, resize, border
        QString name;
        QString source;
        QString marginHeight;
        QString marginWidth;
    };

    // The property controls, showing the selected frame.
    struct Properties {
        QString name;
        QString source;
        QString marginWidth;
        QString marginHeight;
        int scrolling = 0;   // 0 "Auto", 1 "Yes", 2 "No"
        bool resize = false; // "Resizable", written as NORESIZE
        bool border = false;
    };

    // The edges of a frame under the pointer, as flags.
    enum Edge { NoEdge = 0, LeftEdge = 1, RightEdge = 2, TopEdge = 4, BottomEdge = 8 };

    FrameModel() { NewFrameSetup(Orientation::Cols, 2); }

    // A fresh layout of `count` equal columns or rows. A count of 0 leaves
    // the one frame at the size of the whole screen.
    void NewFrameSetup(Orientation orientation, int count);

    Orientation orientation() const { return m_orientation; }
    int LastFrame() const { return int(m_frames.size()) - 1; }
    int frameCount() const { return int(m_frames.size()); }
    const Frame &frame(int index) const { return m_frames.at(size_t(index)); }
    // Places a frame directly (for layouts made by the program, and tests).
    void setRect(int index, const Rect &rect) { m_frames.at(size_t(index)).rect = rect; }
    int CurrentFrame() const { return m_current; }
    Properties &properties() { return m_props; }
    const Properties &properties() const { return m_props; }
    // "Frame 1 Properties"; just after a delete "Frame1 Properties".
    QString caption() const { return m_caption; }

    // A click on a frame: the shown properties go to the frame left, the
    // new frame's come into the controls.
    void select(int index);
    // The controls into the selected frame's arrays and attribute text.
    void Change_FrameData();
    // The selected frame's arrays into the controls.
    void Get_FrameData();

    // Whether the buttons apply to the selected frame: Add on a frame at
    // the far edge (bottom for columns, right for rows), Delete on such a
    // frame that does not start at the near edge.
    bool addEnabled() const;
    bool deleteEnabled() const;

    // Splits the selected frame in two the inner way: below it in a column,
    // beside it in a row. False, after the message, when there is no room.
    bool Add();
    // Removes the selected frame; the frame before it in its column (or
    // row) takes its room.
    bool DeleteFrame();
    // Splits the selected frame the outer way, making a new column (row)
    // beside it. A column already divided into rows would need a third
    // level: that and a lack of room are refused with the message.
    bool SplitAcross();

    // The whole-number percentage of the screen's width and height.
    int widthPercent(int index) const;
    int heightPercent(int index) const;

    // The edges of the selected frame within the grab width of a point
    // given in the frame's own coordinates.
    int Which_Edge(float x, float y) const;
    // Moves the selected frame's edges by the pointer's movement; the
    // frames beyond each edge give way so the screen stays tiled, and no
    // frame becomes smaller than the add limit (or than it already is).
    void moveEdges(int edges, float dx, float dy);

    // "The first character of the Name should be alphanumeric" when the
    // name is one character that is no letter or digit; the name is then
    // cleared. False when it was refused.
    static bool CheckName(QString &name);

    // The text told when a frame cannot be split.
    QString noRoomMessage() const;

private:
    bool addInner();
    void moveDivider(bool vertical, float at, float delta, const Rect &cell);
    float limit() const { return m_orientation == Orientation::Cols ? 500.0f : 1000.0f; }

    Orientation m_orientation = Orientation::Cols;
    std::vector<Frame> m_frames;
    int m_current = 0;
    Properties m_props;
    QString m_caption;
};

} // namespace qly::generators
