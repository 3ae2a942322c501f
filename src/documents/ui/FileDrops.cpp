#include "documents/ui/FileDrops.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace qly::documents::ui {

namespace {

const QString ResourceFormat = QStringLiteral("application/x-quillery-resource");

QStringList localFiles(const QMimeData *mime)
{
    QStringList files;
    if (!mime || !mime->hasUrls())
        return files;
    for (const QUrl &url : mime->urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    return files;
}

class FileDropFilter final : public QObject
{
public:
    FileDropFilter(QObject *parent, std::function<void(const QString &)> onFile,
                   std::function<void(const QString &)> onResource)
        : QObject(parent), m_onFile(std::move(onFile)), m_onResource(std::move(onResource))
    {
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto *drag = static_cast<QDragMoveEvent *>(event);
            if (localFiles(drag->mimeData()).isEmpty())
                return false;
            drag->acceptProposedAction();
            return true;
        }
        case QEvent::Drop: {
            auto *drop = static_cast<QDropEvent *>(event);
            const QStringList files = localFiles(drop->mimeData());
            if (files.isEmpty())
                return false;
            drop->acceptProposedAction();
            const bool resource = m_onResource && drop->mimeData()->hasFormat(ResourceFormat);
            // The work runs after the drop has ended: it may ask questions,
            // and the source of the drag should not wait for them.
            QMetaObject::invokeMethod(
                this,
                [this, files, resource] {
                    for (const QString &file : files) {
                        if (resource)
                            m_onResource(file);
                        else
                            m_onFile(file);
                    }
                },
                Qt::QueuedConnection);
            return true;
        }
        default:
            return false;
        }
    }

private:
    std::function<void(const QString &)> m_onFile;
    std::function<void(const QString &)> m_onResource;
};

} // namespace

void MarkResourceDrag(QMimeData *mime, const QString &source)
{
    if (mime)
        mime->setData(ResourceFormat, source.toUtf8());
}

void AcceptFileDrops(QWidget *target, std::function<void(const QString &path)> onFile,
                     std::function<void(const QString &path)> onResource)
{
    target->setAcceptDrops(true);
    target->installEventFilter(new FileDropFilter(target, std::move(onFile), std::move(onResource)));
}

} // namespace qly::documents::ui
