#pragma once

#include "tagdialogs/ui/TagDialog.h"

namespace qly::tagdialogs::ui {

// frmImage: the picture's fields beside a preview of it, with its file size
// and its real width and height as the file gives them.
class frmImage final : public TagDialog
{
    Q_OBJECT
public:
    explicit frmImage(QWidget *parent);

    // The picture's file for a source as written in the page.
    static QString pictureFile(const QString &source);
    // Asks whether a dropped file should be the picture, and takes it.
    void offerFile(const QString &path);

protected:
    void changed() override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void showPicture();

    QComboBox *m_src = nullptr;
    QLineEdit *m_width = nullptr;
    QLineEdit *m_height = nullptr;
    QLabel *m_preview = nullptr;
    QLabel *m_facts = nullptr;
    QString m_shown;
    QSize m_actual;
};

} // namespace qly::tagdialogs::ui
