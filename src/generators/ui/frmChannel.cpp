#include "generators/ui/frmChannel.h"

#include <QComboBox>
#include <QLineEdit>

namespace qly::generators::ui {

frmNetCaster::frmNetCaster(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmNetCaster"), QStringLiteral("NetCaster"), parent)
{
    const NetCasterFields d;
    m_name = addLine(QStringLiteral("ChannelName"), QStringLiteral("Channel name:"));
    m_url = addLine(QStringLiteral("ChannelURL"), QStringLiteral("Channel URL:"));
    m_url->setText(d.url);
    m_interval = addLine(QStringLiteral("ChannelInterval"), QStringLiteral("Update every (minutes):"), true);
    m_interval->setText(QStringLiteral("60"));
    m_cacheSize = addLine(QStringLiteral("MaxCacheSize"), QStringLiteral("Maximum cache size (bytes):"), true);
    m_cacheSize->setText(QStringLiteral("512000"));
    m_depth = addLine(QStringLiteral("ChannelDepth"), QStringLiteral("Depth:"), true);
    m_depth->setText(QStringLiteral("1"));
    m_type = addCombo(QStringLiteral("ChannelType"), QStringLiteral("Show in:"),
                      {QStringLiteral("window"), QStringLiteral("webtop")}, false);
    m_buttonName = addLine(QStringLiteral("ButtonName"), QStringLiteral("Button caption:"));
    m_buttonName->setText(QStringLiteral("Add Channel"));
}

NetCasterFields frmNetCaster::fields() const
{
    return {m_name->text(), m_url->text(), m_interval->text(), m_cacheSize->text(), m_depth->text(),
            m_type->currentText(), m_buttonName->text()};
}

frmActiveChannel::frmActiveChannel(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmActiveChannel"), QStringLiteral("Active Channel"), parent)
{
    const ActiveChannelFields d;
    m_name = addLine(QStringLiteral("ChannelName"), QStringLiteral("Channel name:"));
    m_interval = addLine(QStringLiteral("ChannelInterval"), QStringLiteral("Update every (hours):"), true);
    m_interval->setText(QStringLiteral("24"));
    m_url = addLine(QStringLiteral("ChannelURL"), QStringLiteral("Channel URL:"));
    m_url->setText(d.url);
    m_abstract = addLine(QStringLiteral("Abstract"), QStringLiteral("Abstract:"));
    m_longName = addLine(QStringLiteral("LongName"), QStringLiteral("Long name:"));
    m_itemName = addLine(QStringLiteral("ItemName"), QStringLiteral("First item's name:"));
    m_itemUrl = addLine(QStringLiteral("ItemURL"), QStringLiteral("First item's URL:"));
    m_self = addLine(QStringLiteral("SelfLocation"), QStringLiteral("This file's location:"));
    m_self->setText(d.selfLocation);
}

ActiveChannelFields frmActiveChannel::fields() const
{
    return {m_name->text(),     m_interval->text(), m_url->text(),     m_abstract->text(),
            m_longName->text(), m_itemName->text(), m_itemUrl->text(), m_self->text()};
}

frmACItem::frmACItem(bool subscribe, QWidget *parent)
    : FieldsDialog(subscribe ? QStringLiteral("frmACSubscribe") : QStringLiteral("frmACItem"),
                   subscribe ? QStringLiteral("Active Channel Subscribe") : QStringLiteral("Insert Active Channel Item"),
                   parent)
{
    m_name = addLine(subscribe ? QStringLiteral("txtButtonName") : QStringLiteral("ItemName"),
                     subscribe ? QStringLiteral("Button text:") : QStringLiteral("Item name:"));
    m_url = addLine(subscribe ? QStringLiteral("txtURL") : QStringLiteral("ItemURL"),
                    subscribe ? QStringLiteral("Channel file URL:") : QStringLiteral("Item URL:"));
}

QString frmACItem::name() const
{
    return m_name->text();
}

QString frmACItem::url() const
{
    return m_url->text();
}

} // namespace qly::generators::ui
