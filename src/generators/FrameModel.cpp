#include "generators/FrameModel.h"

#include "platform/Prompts.h"

#include <algorithm>
#include <cmath>

namespace qly::generators {

namespace {

// Two edges closer than this are one edge.
constexpr float Tolerance = 10;
// How near an edge the pointer grabs it.
constexpr float GrabWidth = 100;

bool near(float a, float b)
{
    return std::fabs(a - b) <= Tolerance;
}

int percent(float part, float whole)
{
    // Whole numbers as the old runtime rounded them: a half to the even neighbour.
    return int(std::nearbyint(part / whole * 100.0f));
}

} // namespace

void FrameModel::NewFrameSetup(Orientation orientation, int count)
{
    m_orientation = orientation;
    m_frames.assign(1, Frame{});
    m_current = 0;
    Rect &first = m_frames[0].rect;
    if (count > 0) {
        if (orientation == Orientation::Cols)
            first.width = ScreenWidth / float(count);
        else
            first.height = ScreenHeight / float(count);
    }
    for (int i = 1; i < count; ++i) {
        Frame next;
        const Rect &previous = m_frames.back().rect;
        next.rect = previous;
        if (orientation == Orientation::Cols)
            next.rect.left = previous.right();
        else
            next.rect.top = previous.bottom();
        m_frames.push_back(next);
        m_current = i;
    }
    // The setup leaves the last frame made selected.
    Get_FrameData();
    m_caption = QStringLiteral("Frame %1 Properties").arg(m_current + 1);
}

void FrameModel::select(int index)
{
    if (index < 0 || index > LastFrame())
        return;
    Change_FrameData();
    m_current = index;
    m_caption = QStringLiteral("Frame %1 Properties").arg(index + 1);
    Get_FrameData();
}

void FrameModel::Change_FrameData()
{
    Frame &f = m_frames.at(size_t(m_current));
    f.attributes.clear();
    if (!m_props.marginWidth.isEmpty())
        f.attributes += QStringLiteral(" MARGINWIDTH=") + m_props.marginWidth;
    if (!m_props.marginHeight.isEmpty())
        f.attributes += QStringLiteral(" MARGINHEIGHT=") + m_props.marginHeight;
    static const char *const scrolling[] = {" SCROLLING=AUTO", " SCROLLING=YES", " SCROLLING=NO"};
    const int s = std::clamp(m_props.scrolling, 0, 2);
    f.flags = QString::number(s + 1);
    f.attributes += QLatin1String(scrolling[s]);
    f.flags += m_props.resize ? QLatin1Char('1') : QLatin1Char('0');
    if (m_props.resize)
        f.attributes += QStringLiteral(" NORESIZE");
    f.flags += m_props.border ? QLatin1Char('1') : QLatin1Char('0');
    if (m_props.border)
        f.attributes += QStringLiteral(" BORDER=\"1\"");
    f.name = m_props.name;
    f.source = m_props.source;
    f.marginHeight = m_props.marginHeight;
    f.marginWidth = m_props.marginWidth;
}

void FrameModel::Get_FrameData()
{
    const Frame &f = m_frames.at(size_t(m_current));
    const QString flags = f.flags + QStringLiteral("   ");
    m_props.scrolling = std::clamp(flags.at(0).unicode() - '1', 0, 2);
    m_props.resize = flags.at(1) == QLatin1Char('1');
    m_props.border = flags.at(2) == QLatin1Char('1');
    m_props.name = f.name;
    m_props.source = f.source;
    m_props.marginHeight = f.marginHeight;
    m_props.marginWidth = f.marginWidth;
}

bool FrameModel::addEnabled() const
{
    const Rect &r = m_frames.at(size_t(m_current)).rect;
    return m_orientation == Orientation::Cols ? near(r.bottom(), ScreenHeight) : near(r.right(), ScreenWidth);
}

bool FrameModel::deleteEnabled() const
{
    const Rect &r = m_frames.at(size_t(m_current)).rect;
    return m_orientation == Orientation::Cols ? addEnabled() && !near(r.top, 0) : addEnabled() && !near(r.left, 0);
}

QString FrameModel::noRoomMessage() const
{
    return m_orientation == Orientation::Cols
               ? QStringLiteral("There is currently not enough room to add another frame. You may wish to resize "
                                "the existing frames to make more space.")
               : QStringLiteral("There is currently not enough room to add another frame. You may wish to re-size "
                                "the existing frames to make more space.");
}

bool FrameModel::Add()
{
    Change_FrameData();
    if (!addInner()) {
        platform::MsgBox(noRoomMessage());
        return false;
    }
    return true;
}

bool FrameModel::addInner()
{
    const bool cols = m_orientation == Orientation::Cols;
    Rect sel = m_frames.at(size_t(m_current)).rect;
    // A frame that reaches the far edge gives half of itself; one that does
    // not keeps its size, and the new frame lands behind it.
    const float extent = cols ? sel.height : sel.width;
    const float reach = cols ? sel.bottom() : sel.right();
    if (reach >= (cols ? ScreenHeight : ScreenWidth) - limit()) {
        if (extent <= limit())
            return false;
        (cols ? sel.height : sel.width) = extent / 2;
        m_frames.at(size_t(m_current)).rect = sel;
    }
    Frame added;
    added.rect = sel;
    if (cols)
        added.rect.top = sel.bottom();
    else
        added.rect.left = sel.right();
    m_frames.push_back(added);
    m_current = LastFrame();
    m_caption = QStringLiteral("Frame %1 Properties").arg(m_current + 1);
    Get_FrameData();
    return true;
}

bool FrameModel::SplitAcross()
{
    Change_FrameData();
    const bool cols = m_orientation == Orientation::Cols;
    const Rect sel = m_frames.at(size_t(m_current)).rect;
    // A column already divided into rows (a row into columns) cannot be
    // divided again the other way: that would be a third level.
    const bool whole = cols ? near(sel.top, 0) && near(sel.bottom(), ScreenHeight)
                            : near(sel.left, 0) && near(sel.right(), ScreenWidth);
    const float extent = cols ? sel.width : sel.height;
    if (!whole || extent <= 2 * limit()) {
        platform::MsgBox(noRoomMessage());
        return false;
    }
    Frame added;
    added.rect = sel;
    if (cols) {
        m_frames.at(size_t(m_current)).rect.width = extent / 2;
        added.rect.left = sel.left + extent / 2;
        added.rect.width = extent / 2;
    } else {
        m_frames.at(size_t(m_current)).rect.height = extent / 2;
        added.rect.top = sel.top + extent / 2;
        added.rect.height = extent / 2;
    }
    m_frames.push_back(added);
    m_current = LastFrame();
    m_caption = QStringLiteral("Frame %1 Properties").arg(m_current + 1);
    Get_FrameData();
    return true;
}

bool FrameModel::DeleteFrame()
{
    if (m_frames.size() <= 1)
        return false;
    const Rect sel = m_frames.at(size_t(m_current)).rect;
    for (Frame &f : m_frames) {
        Rect &r = f.rect;
        if (m_orientation == Orientation::Rows && near(r.right(), sel.left) && r.top == sel.top)
            r.width += sel.width;
        if (m_orientation == Orientation::Cols && near(r.bottom(), sel.top) && r.left == sel.left)
            r.height += sel.height;
    }
    m_frames.erase(m_frames.begin() + m_current);
    m_current = std::min(m_current, LastFrame());
    m_caption = QStringLiteral("Frame%1 Properties").arg(m_current + 1);
    Get_FrameData();
    return true;
}

int FrameModel::widthPercent(int index) const
{
    return percent(frame(index).rect.width, ScreenWidth);
}

int FrameModel::heightPercent(int index) const
{
    return percent(frame(index).rect.height, ScreenHeight);
}

int FrameModel::Which_Edge(float x, float y) const
{
    const Rect &r = m_frames.at(size_t(m_current)).rect;
    int edges = NoEdge;
    if (x <= GrabWidth)
        edges |= LeftEdge;
    else if (x >= r.width - GrabWidth)
        edges |= RightEdge;
    if (y <= GrabWidth)
        edges |= TopEdge;
    else if (y >= r.height - GrabWidth)
        edges |= BottomEdge;
    return edges;
}

void FrameModel::moveEdges(int edges, float dx, float dy)
{
    const Rect sel = m_frames.at(size_t(m_current)).rect;
    if (edges & LeftEdge)
        moveDivider(true, sel.left, dx, sel);
    if (edges & RightEdge)
        moveDivider(true, sel.right(), dx, sel);
    if (edges & TopEdge)
        moveDivider(false, sel.top, dy, sel);
    if (edges & BottomEdge)
        moveDivider(false, sel.bottom(), dy, sel);
}

// A divider runs across the whole screen when it is one of the outer
// level's (between columns in a layout of columns); otherwise it lies
// inside one column (row), and only that column's frames take part.
void FrameModel::moveDivider(bool vertical, float at, float delta, const Rect &cell)
{
    const float screen = vertical ? ScreenWidth : ScreenHeight;
    if (near(at, 0) || near(at, screen) || delta == 0)
        return;
    const bool outer = vertical == (m_orientation == Orientation::Cols);
    auto inCell = [&](const Rect &r) { return outer || (vertical ? r.top == cell.top : r.left == cell.left); };
    auto lowEdge = [vertical](const Rect &r) { return vertical ? r.left : r.top; };
    auto size = [vertical](Rect &r) -> float & { return vertical ? r.width : r.height; };

    float lo = -screen;
    float hi = screen;
    for (Frame &f : m_frames) {
        Rect &r = f.rect;
        if (!inCell(r))
            continue;
        const float s = size(r);
        const float keep = std::min(limit(), s);
        if (near(lowEdge(r) + s, at))
            lo = std::max(lo, keep - s);
        if (near(lowEdge(r), at))
            hi = std::min(hi, s - keep);
    }
    if (lo > hi)
        return;
    const float to = at + std::clamp(delta, lo, hi);
    for (Frame &f : m_frames) {
        Rect &r = f.rect;
        if (!inCell(r))
            continue;
        const float start = lowEdge(r);
        const float end = start + size(r);
        if (near(end, at)) {
            size(r) = to - start;
        } else if (near(start, at)) {
            (vertical ? r.left : r.top) = to;
            size(r) = end - to;
        }
    }
}

bool FrameModel::CheckName(QString &name)
{
    if (name.size() != 1)
        return true;
    const char16_t c = name.at(0).unicode();
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'))
        return true;
    platform::MsgBox(QStringLiteral("The first character of the Name should be alphanumeric"));
    name.clear();
    return false;
}

} // namespace qly::generators
