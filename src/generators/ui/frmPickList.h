#pragma once

#include "generators/ui/FieldsDialog.h"

#include <QList>
#include <QStringList>

class QTreeWidget;

namespace qly::generators::ui {

// "Select URL": a list of texts with their addresses, added through
// frmAddURL and removed again.
class frmPickList : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmPickList(QWidget *parent = nullptr);
    // The rows, each as the list's columns.
    QList<QStringList> rows() const;
    void addRow(const QStringList &values);

protected:
    frmPickList(const QString &objectName, const QString &title, const QStringList &columns, bool images,
                QWidget *parent);

private:
    bool m_images;
    QTreeWidget *m_lstURLs;
};

// "JavaScript Random Banner": pictures with their links and captions, added
// through frmAddImage.
class frmJSRandomAd final : public frmPickList
{
    Q_OBJECT
public:
    explicit frmJSRandomAd(QWidget *parent = nullptr);
};

} // namespace qly::generators::ui
