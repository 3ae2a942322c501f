#pragma once

#include "tagdialogs/TagDialogModel.h"

namespace qly::tagdialogs {

// frmAnchor: a named place in the page. [General] "Target" "ID" writes
// <A ID="name">, anything else <A NAME="name"></A>.
class AnchorModel final : public TagDialogModel
{
public:
    QString name() const override { return QStringLiteral("frmAnchor"); }
    QStringList fieldNames() const override { return {QStringLiteral("name")}; }
    bool accept() override;
    QStringList warnings() const override;

protected:
    void read(const QString &selection) override;
};

// The anchor names a page already holds (NAME and ID of its <A> tags), in order.
QStringList AnchorNames(const QString &page);

// frmHR: a horizontal rule.
class RuleModel final : public TagDialogModel
{
public:
    QString name() const override { return QStringLiteral("frmHR"); }
    QStringList fieldNames() const override;
    bool accept() override;
    QString ruleTag() const;
    static QStringList alignments();   // "", "Center", "Left", "Right"

protected:
    void setDefaults() override;
    void read(const QString &selection) override;
};

// frmBackSound: a sound played while the page is shown.
class BackSoundModel final : public TagDialogModel
{
public:
    QString name() const override { return QStringLiteral("frmBackSound"); }
    QStringList fieldNames() const override { return {QStringLiteral("file")}; }
    bool accept() override;
    QStringList warnings() const override;

protected:
    void read(const QString &selection) override;
};

} // namespace qly::tagdialogs
