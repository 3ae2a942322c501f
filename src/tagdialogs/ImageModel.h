#pragma once

#include "tagdialogs/TagDialogModel.h"

namespace qly::tagdialogs {

// frmImage: an <IMG> tag, optionally inside a link.
class ImageModel final : public TagDialogModel
{
public:
    QString name() const override { return QStringLiteral("frmImage"); }
    QStringList fieldNames() const override;
    bool accept() override;
    QStringList warnings() const override;

    // The tag as OK writes it (with the link around it when there is one).
    QString imageTag() const;
    static QStringList alignments();

protected:
    void read(const QString &selection) override;
};

} // namespace qly::tagdialogs
