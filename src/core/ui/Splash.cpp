#include "core/ui/Splash.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QScreen>

namespace qly::core::ui {

Splash::Splash(QWidget *parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setObjectName(QStringLiteral("frmSplash"));
    resize(420, 220);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->geometry().center() - rect().center());
}

void Splash::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    QLinearGradient g(0, 0, 0, height());
    g.setColorAt(0, QColor(0x1f, 0x3a, 0x5f));
    g.setColorAt(1, QColor(0x0b, 0x16, 0x26));
    p.fillRect(rect(), g);
    p.setPen(Qt::white);
    QFont big = font();
    big.setPointSize(34);
    big.setBold(true);
    p.setFont(big);
    p.drawText(rect().adjusted(0, -20, 0, -20), Qt::AlignCenter, QStringLiteral("Quillery"));
    QFont small = font();
    small.setPointSize(12);
    p.setFont(small);
    p.drawText(rect().adjusted(0, 60, 0, 0), Qt::AlignCenter, QStringLiteral("Version 4.01"));
}

} // namespace qly::core::ui
