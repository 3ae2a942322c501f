#pragma once

#include "tagdialogs/TagDialogModel.h"

namespace qly::tagdialogs {

// The sizes of the font lists: "+1" to "+7", "-1" to "-7".
QStringList FontSizes();

// frmFont: a <FONT> tag and style tags round the selection.
class FontModel final : public TagDialogModel
{
public:
    QString name() const override { return QStringLiteral("frmFont"); }
    QStringList fieldNames() const override;
    bool accept() override;

    // The style flags in the order of their tags, and the tags.
    static QStringList styleFlags();
    static QStringList styleTags();
    QString startText() const;
    QString endText() const;

protected:
    void read(const QString &selection) override;
};

// frmBaseFont: the page's <BASEFONT>.
class BaseFontModel final : public TagDialogModel
{
public:
    QString name() const override { return QStringLiteral("frmBaseFont"); }
    QStringList fieldNames() const override;
    bool accept() override;
    QString tagText() const;

protected:
    void read(const QString &selection) override;
};

} // namespace qly::tagdialogs
