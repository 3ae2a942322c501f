#pragma once

#include "websites/ProjectManagerModel.h"

#include <QDialog>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace qly::websites::ui {

// "Website Manager": the details of a website, shown from its model.
class frmProjectManager : public QDialog
{
    Q_OBJECT
public:
    explicit frmProjectManager(QWidget *parent = nullptr);
    ProjectManagerModel &model() { return m_model; }
    // Fills the fields from the model (after setWebsite/setProjectFile).
    void load();

protected:
    void reject() override;

private:
    QLineEdit *field(const QString &name, const QString &caption, QString ProjectManagerModel::*member);
    void showLabels();
    void btnSave_Click();
    ProjectManagerModel m_model;
    QList<std::pair<QLineEdit *, QString ProjectManagerModel::*>> m_fields;
    QLabel *m_facts = nullptr;
    QCheckBox *m_keyring = nullptr;
    QFormLayout *m_form = nullptr;
    bool m_loading = false;
};

// The manager for a new website, or for an open one.
void ShowProjectManager(QWidget *parent);
void ShowWebsiteProperties(int id, QWidget *parent);
// The manager for a project file (opening it in the tree first).
void ShowProjectManagerFor(const QString &projectFile, QWidget *parent);

} // namespace qly::websites::ui
