#pragma once

#include "generators/FrameModel.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace qly::generators::ui {

class FrameScreen;
class PreviewPane;

// "Frame Editor": the layout on a miniature screen, the selected frame's
// properties beside it, and OK puts the framesets into the document.
class frmFrame final : public QDialog
{
    Q_OBJECT
public:
    frmFrame(FrameModel::Orientation orientation, int count, QWidget *parent = nullptr, bool livePreview = true);

    FrameModel &model() { return m_model; }
    FrameScreen *screen() const { return m_screen; }
    PreviewPane *preview() const { return m_preview; }
    QLineEdit *nameField() const { return m_txtName; }
    QComboBox *sourceField() const { return m_cmbURL; }
    QPushButton *addButton() const { return m_cmdAdd; }
    QPushButton *deleteButton() const { return m_cmdDelete; }
    QString Tag() const { return m_tag; }

    void cmdAdd_Click();
    void cmdAcross_Click();
    void cmdDelete_Click();
    void cmdOK_Click();
    // The browse button beside the source.
    void Picture1_Click();

protected:
    void done(int result) override;

private:
    void showFrame();
    void propertiesChanged();

    FrameModel m_model;
    FrameScreen *m_screen = nullptr;
    QGroupBox *m_frame4 = nullptr;
    QLineEdit *m_txtName = nullptr;
    QComboBox *m_cmbURL = nullptr;
    QComboBox *m_cmbScrolling = nullptr;
    QCheckBox *m_chkResize = nullptr;
    QCheckBox *m_chkBorder = nullptr;
    QLineEdit *m_txtMWidth = nullptr;
    QLineEdit *m_txtMHeight = nullptr;
    QLabel *m_lblWidth = nullptr;
    QLabel *m_lblHeight = nullptr;
    QPushButton *m_cmdAdd = nullptr;
    QPushButton *m_cmdAcross = nullptr;
    QPushButton *m_cmdDelete = nullptr;
    PreviewPane *m_preview = nullptr;
    bool m_showing = false;
    QString m_tag;
};

} // namespace qly::generators::ui
