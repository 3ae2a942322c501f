#pragma once

#include "generators/ReplaceChannel.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// "NetCaster": the channel's values for the NetCaster templates.
class frmNetCaster final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmNetCaster(QWidget *parent = nullptr);
    NetCasterFields fields() const;

private:
    QLineEdit *m_name, *m_url, *m_interval, *m_cacheSize, *m_depth, *m_buttonName;
    QComboBox *m_type;
};

// "Active Channel": the channel definition's values.
class frmActiveChannel final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmActiveChannel(QWidget *parent = nullptr);
    ActiveChannelFields fields() const;

private:
    QLineEdit *m_name, *m_interval, *m_url, *m_abstract, *m_longName, *m_itemName, *m_itemUrl, *m_self;
};

// "Insert Active Channel Item" (two fields) and "Active Channel Subscribe"
// (frmACSubscribe: button name and URL) share this frame.
class frmACItem final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmACItem(bool subscribe, QWidget *parent = nullptr);
    QString name() const;
    QString url() const;

private:
    QLineEdit *m_name, *m_url;
};

} // namespace qly::generators::ui
