#pragma once

#include "images/OptimizerRun.h"

#include <QDialog>
#include <QTemporaryDir>
#include <memory>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTreeWidget;

namespace qly::images::ui {

// The Page Optimizer: the resources of a site walked from its index page,
// with sizes, kinds and download times, and the automatic and manual runs
// that make its images smaller and write the altered pages.
class frmTabbuster final : public QDialog
{
    Q_OBJECT
public:
    explicit frmTabbuster(QWidget *parent = nullptr);
    ~frmTabbuster() override;

    // One optimizer at a time, modeless.
    static void showFor(QWidget *parent);
    static frmTabbuster *current();

    const SiteWalk &walk() const { return m_walk; }
    // What the buttons do, callable from tests.
    void btnOpen_Click();
    void OpenIndex(const QString &file);
    void DisplayResources();
    void MarkResources();
    void btnBandBust_Click();
    void btnManual_Click();
    void btnnext_Click();
    void btnSaveImage_Click();
    void cancelRun() { m_cancel = true; }
    bool running() const { return m_running; }

private:
    QWidget *resourcesBox();
    QWidget *optionsBox();
    QWidget *manualBox();
    RunOptions options() const;
    bool step(int done, int total, const QString &file);
    void setRunning(bool on);
    void showImage(QLabel *picture, QLabel *facts, const QString &file);
    void finishManual();

    SiteWalk m_walk;
    QLineEdit *m_txtIndex = nullptr;
    QComboBox *m_cmbSpeed = nullptr;
    QLabel *m_lblSize = nullptr;
    QLabel *m_lbldowntime = nullptr;
    QLineEdit *m_txtmarksize = nullptr;
    QTreeWidget *m_lstImages = nullptr;
    QButtonGroup *m_rbcompress = nullptr;
    QButtonGroup *m_rbJpeg = nullptr;
    QLineEdit *m_txtother2 = nullptr;
    QLineEdit *m_txtOther = nullptr;
    QButtonGroup *m_imageOption = nullptr;
    QCheckBox *m_chkoverwritehtml = nullptr;
    QLineEdit *m_txtsavedir = nullptr;
    QPushButton *m_btnBandBust = nullptr;
    QPushButton *m_btnManual = nullptr;
    QPushButton *m_btnnext = nullptr;
    QPushButton *m_btnSaveImage = nullptr;
    QPushButton *m_btnCancel = nullptr;
    QProgressBar *m_progress = nullptr;
    QLabel *m_picOriginal = nullptr;
    QLabel *m_picCompressed = nullptr;
    QLabel *m_factsOriginal = nullptr;
    QLabel *m_factsCompressed = nullptr;
    std::unique_ptr<ManualRun> m_manual;
    QTemporaryDir m_workDir;
    bool m_cancel = false;
    bool m_running = false;
};

} // namespace qly::images::ui
