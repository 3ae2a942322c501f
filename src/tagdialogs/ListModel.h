#pragma once

#include "tagdialogs/TagDialogModel.h"

namespace qly::tagdialogs {

// frmList: a bulleted (kind 0, UL), numbered (1, OL) or definition list
// (2, DL). `lines` holds one entry a line; a definition list takes them in
// turn as term and definition.
class ListModel final : public TagDialogModel
{
public:
    explicit ListModel(int kind = 0) : m_kind(kind) {}

    QString name() const override { return QStringLiteral("frmList"); }
    QStringList fieldNames() const override;
    bool accept() override;

    QString listText() const;
    static QString kindTag(int kind);               // "UL", "OL", "DL"
    static QString title(int kind);                 // "Bulleted List Properties", ...
    static QStringList typeNames(int kind);         // the bullet or number kinds
    static QStringList typeValues(int kind);        // what TYPE= writes for them

protected:
    void setDefaults() override;
    void read(const QString &selection) override;

private:
    int m_kind;
};

} // namespace qly::tagdialogs
