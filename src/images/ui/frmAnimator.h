#pragma once

#include "images/AnimatorModel.h"

#include <QDialog>
#include <QImage>
#include <QTimer>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QTabWidget;
class QToolButton;

namespace qly::images::ui {

class FrameStrip;

// The Animator: frames from picture files, played on its own canvas or in
// a browser, and made into an animated GIF89a file or an applet tag that
// goes into the document.
class frmAnimator final : public QDialog
{
    Q_OBJECT
public:
    explicit frmAnimator(QWidget *parent = nullptr);

    // One animator at a time, modeless.
    static void showFor(QWidget *parent);

    AnimatorModel &model() { return m_model; }
    int currentFrame() const { return m_current; }

    void AddFile(const QString &path);
    void ReloadFrames();
    void DisplayFrame(int index);
    // What the buttons do, callable from tests.
    void cmdAdd_Click();
    void cmdClear_Click();
    QString cmbExport_Click();
    QString GenerateTag();
    void cmdOK_Click();
    void cmdPreview_Click();
    void cmdProcess_Click();
    void play();
    void stop();
    void step();
    bool playing() const { return m_timer.isActive(); }
    int shownFrame() const { return m_playIndex; }

private:
    QWidget *framesTab();
    QWidget *gifTab();
    QWidget *appletTab();
    QWidget *propertiesTab();
    void readFields();
    void showOnCanvas(int index);
    void Timer1_Timer();
    int frameDelay(int index) const;
    void pickBackColour();

    AnimatorModel m_model;
    QList<QImage> m_pictures;
    int m_current = -1;
    int m_playIndex = -1;
    QTimer m_timer;

    FrameStrip *m_strip = nullptr;
    QLabel *m_imgTrash = nullptr;
    QScrollBar *m_scrAnimator = nullptr;
    QLabel *m_txtFrame = nullptr;
    QLabel *m_picPlay = nullptr;
    QToolButton *m_sscControls[3] = {};
    QTabWidget *m_tabMain = nullptr;
    QLineEdit *m_txtframeDelay = nullptr;
    QComboBox *m_cmbDisposal = nullptr;
    QLineEdit *m_txtRepeat = nullptr;
    QCheckBox *m_chkPalette = nullptr;
    QCheckBox *m_chkTrailer = nullptr;
    QPushButton *m_cmbExport = nullptr;
    QCheckBox *m_chkBack = nullptr;
    QToolButton *m_lfcBack = nullptr;
    QComboBox *m_cmbDirection[2] = {};
    QComboBox *m_cmbWrap = nullptr;
    QLineEdit *m_txtEffect[3] = {};
    QLineEdit *m_txtprop[3] = {};
};

} // namespace qly::images::ui
