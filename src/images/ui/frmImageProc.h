#pragma once

#include "images/ui/ImageProcSession.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;

namespace qly::images::ui {

class PicturePane;

// Image Processing: one picture as a GIF and as a JPEG side by side with
// what each costs on disk; a transparent colour for the GIF (picked with the
// eyedropper), a compression level for the JPEG, and either saved.
class frmImageProc final : public QDialog
{
    Q_OBJECT
public:
    explicit frmImageProc(QWidget *parent = nullptr, const QString &directory = {});

    // Shows the dialog for `file` and returns the name saved under, or empty.
    static QString run(QWidget *parent, const QString &file);

    void LoadProcImage(const QString &file);
    ImageProcSession &session() { return m_session; }
    // "DONE" once closed with Close.
    const QString &tag() const { return m_tag; }
    const QString &savedFile() const { return m_saved; }

    // What the controls do, callable from tests.
    void rbJpeg_Click(int index);
    void sscEyeDropper_Click();
    void ldGif_MouseUp(const QPoint &pixel);
    void ldjpeg_MouseUp();
    void chkTransparent_Click();
    void btnSave_Click(int index);

private:
    void ShowImageInfo();
    void showSwatch();
    int jpegLevel() const;

    ImageProcSession m_session;
    QString m_tag;
    QString m_saved;
    bool m_pickArmed = false;
    QColor m_colour;

    QLabel *m_lblFile = nullptr;
    PicturePane *m_ldGIF = nullptr;
    PicturePane *m_ldJPEG = nullptr;
    QLabel *m_lblBitsPerPixel[2] = {};
    QLabel *m_lbldisksize[2] = {};
    QLabel *m_lblWidth = nullptr;
    QLabel *m_lblHeight = nullptr;
    QCheckBox *m_chkTransparent = nullptr;
    QToolButton *m_shpTransColour = nullptr;
    QToolButton *m_sscEyeDropper = nullptr;
    QRadioButton *m_rbJpeg[5] = {};
    QLineEdit *m_txtOther = nullptr;
    QPushButton *m_btnSave[2] = {};
};

} // namespace qly::images::ui
