#pragma once

#include <QDialog>
#include <QIcon>
#include <QList>
#include <QStringList>

namespace qly::generators::ui {

// The fixed templates of the table and frame editors: six buttons, each
// inserting "<stem>1.tpl" to "<stem>6.tpl" of the program's "Templates"
// folder into the current document, then closing.
class FixedTemplateDialog : public QDialog
{
    Q_OBJECT
public:
    FixedTemplateDialog(const QString &title, const QString &stem, const QStringList &captions,
                        const QList<QIcon> &pictures, QWidget *parent);

    // The button of template `index` (0 to 5).
    void cmdTemplate_Click(int index);

private:
    QString m_stem;
};

// "Table Templates": Ad Space, Headline, Calendar, Newspaper, Header/Footer, Navigation.
class frmTableTemp final : public FixedTemplateDialog
{
    Q_OBJECT
public:
    explicit frmTableTemp(QWidget *parent = nullptr);
};

// "Frame Templates": 3 Column, Header/Footer, Two with Three, Ad Space,
// Nav. with Headline, Navigation, each with a picture of its layout.
class frmFrameTemp final : public FixedTemplateDialog
{
    Q_OBJECT
public:
    explicit frmFrameTemp(QWidget *parent = nullptr);
};

} // namespace qly::generators::ui
