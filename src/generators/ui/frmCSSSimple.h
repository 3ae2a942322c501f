#pragma once

#include <QDialog>

class QLabel;
class QListWidget;

namespace qly::generators::ui {

// "Define Styles": the style library, with New, Edit and Remove.
class frmCSSSimple final : public QDialog
{
    Q_OBJECT
public:
    explicit frmCSSSimple(QWidget *parent = nullptr);

    void refresh(const QString &select = {});
    QString selectedStyle() const;
    void newStyle();
    void editStyle();
    void removeStyle();

private:
    void PopulateFields();

    QListWidget *m_lstStyles = nullptr;
    QLabel *m_lblDescription = nullptr;
};

} // namespace qly::generators::ui
