#pragma once

#include <QWidget>

namespace qly::core::ui {

// The start-up window: the product's name and version.
class Splash : public QWidget
{
    Q_OBJECT
public:
    explicit Splash(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace qly::core::ui
