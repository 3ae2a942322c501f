#include "generators/FrameMarkup.h"

#include "generators/FrameModel.h"

#include <vector>

namespace qly::generators {

namespace {

const QString CrLf = QStringLiteral("\r\n");

// The literals of one level of the walk.
struct Level {
    const char *header;
    const char *close;
    bool closeLine;
    bool across;   // percentages of width, frames side by side
};

// The walk's state: the frames already written, so that no layout, however
// odd, sends it round in a circle.
class Walk
{
public:
    explicit Walk(const FrameModel &model) : m_model(model), m_done(size_t(model.frameCount()), false) {}

    QString run()
    {
        const bool cols = m_model.orientation() == FrameModel::Orientation::Cols;
        const Level outer = cols ? Level{"<FRAMESET COLS=\"", " </FRAMESET>", false, true}
                                 : Level{" <FRAMESET ROWS=\"", " </FRAMESET>", false, false};
        const Level inner = cols ? Level{" <FRAMESET ROWS=\"", " </FRAMESET>", true, false}
                                 : Level{"  <FRAMESET COLS=\"", "  </FRAMESET>", true, true};
        // Rows layouts indent every inner frame but the first by one more blank.
        m_laterIndent = cols ? 7 : 8;

        QString header = QLatin1String(outer.header);
        QString body;
        int cur = 0;
        m_done[0] = true;
        header += percentOf(0, outer.across);
        body += walkInner(0, inner);
        for (bool found = true; found;) {
            found = false;
            for (int i = 1; i <= m_model.LastFrame(); ++i) {
                if (m_done[size_t(i)] || !follows(cur, i, outer.across))
                    continue;
                cur = i;
                m_done[size_t(i)] = true;
                header += percentOf(i, outer.across);
                body += walkInner(i, inner);
                found = true;
                // The scan goes on behind the last frame the inner walk took.
                i = m_walkFrame;
            }
        }
        header.chop(1);
        header += QStringLiteral("\">") + CrLf;
        return header + body + QLatin1String(outer.close);
    }

    virtual ~Walk() = default;

protected:
    virtual QString sourceOf(int index) const { return m_model.frame(index).source; }

private:
    QString walkInner(int start, const Level &level)
    {
        m_walkFrame = start;
        QString header = QLatin1String(level.header) + percentOf(start, level.across);
        QString lines = frameLine(start, 7);
        int cur = start;
        int count = 1;
        for (bool found = true; found;) {
            found = false;
            for (int i = 1; i <= m_model.LastFrame(); ++i) {
                if (m_done[size_t(i)] || !follows(cur, i, level.across))
                    continue;
                m_walkFrame = cur = i;
                m_done[size_t(i)] = true;
                ++count;
                header += percentOf(i, level.across);
                lines += frameLine(i, m_laterIndent);
                found = true;
            }
        }
        if (count == 1)
            return lines;
        header.chop(1);
        header += QStringLiteral("\">") + CrLf;
        return header + lines + QLatin1String(level.close) + (level.closeLine ? CrLf : QString());
    }

    bool follows(int from, int to, bool across) const
    {
        const FrameModel::Rect &a = m_model.frame(from).rect;
        const FrameModel::Rect &b = m_model.frame(to).rect;
        if (across)
            return b.top == a.top && a.right() - 10 <= b.left && b.left <= a.right() + 10;
        return b.left == a.left && a.bottom() - 10 <= b.top && b.top <= a.bottom() + 10;
    }

    QString percentOf(int index, bool across) const
    {
        return QString::number(across ? m_model.widthPercent(index) : m_model.heightPercent(index))
               + QStringLiteral("%,");
    }

    QString frameLine(int index, int indent) const
    {
        const FrameModel::Frame &f = m_model.frame(index);
        QString line = QString(indent, QLatin1Char(' ')) + QStringLiteral("<FRAME ");
        const QString source = sourceOf(index);
        qsizetype lead = 0;
        while (lead < source.size() && source.at(lead) == QLatin1Char(' '))
            ++lead;
        if (lead < source.size())
            line += QStringLiteral(" SRC=\"") + source + QLatin1Char('"');
        if (!f.name.isEmpty() && f.name != QStringLiteral(" "))
            line += QStringLiteral(" NAME=\"") + f.name + QLatin1Char('"');
        return line + f.attributes + QLatin1Char('>') + CrLf;
    }

    const FrameModel &m_model;
    std::vector<bool> m_done;
    int m_walkFrame = 0;
    int m_laterIndent = 7;
};

// The preview's walk: a frame without a source shows its number and name.
class PreviewWalk final : public Walk
{
public:
    explicit PreviewWalk(const FrameModel &model) : Walk(model), m_model(model) {}

protected:
    QString sourceOf(int index) const override
    {
        const QString source = m_model.frame(index).source;
        if (!source.trimmed().isEmpty())
            return source;
        const QString name = m_model.frame(index).name.toHtmlEscaped();
        const QString page = QStringLiteral("<body style='font:13px sans-serif;color:%232d3845;background:%23f4f6f8'>"
                                            "<b>Frame %1</b> %2</body>")
                                 .arg(index + 1)
                                 .arg(name);
        return QStringLiteral("data:text/html;charset=utf-8,") + page;
    }

private:
    const FrameModel &m_model;
};

} // namespace

QString CompileFrames(const FrameModel &model)
{
    return Walk(model).run();
}

QString FramePreviewPage(const FrameModel &model)
{
    return QStringLiteral("<HTML>\r\n<HEAD><TITLE>Frame Preview</TITLE></HEAD>\r\n") + PreviewWalk(model).run()
           + QStringLiteral("\r\n</HTML>\r\n");
}

} // namespace qly::generators
