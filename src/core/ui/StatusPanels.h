#pragma once

#include <QObject>

#include <optional>

class QKeyEvent;
class QLabel;
class QStatusBar;
class QTimer;

namespace qly::core::ui {

// The seven panels of the status bar: status text, the two colouring
// modes, caret position, time, NUM and INS.
class StatusPanels : public QObject
{
    Q_OBJECT
public:
    explicit StatusPanels(QStatusBar *bar);

    QLabel *panel(const QString &key) const;
    void setPosition(const QString &text);
    // Presses in the panel of the colouring mode in force: true for tag syntax.
    void showColoringMode(bool syntax);
    void setOverwrite(bool overwrite);
    void setNumLock(bool on);

signals:
    void panelClicked(const QString &key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLabel *addPanel(QStatusBar *bar, const QString &key, const QString &text, const QString &tip, int stretch);
    void updateTime();

    QStatusBar *m_bar;
    QList<QLabel *> m_panels;
    QTimer *m_clock;
};

// The Num Lock state a key event carries, after the key; none where the
// platform does not tell.
std::optional<bool> numLockAfter(const QKeyEvent &event);

} // namespace qly::core::ui
