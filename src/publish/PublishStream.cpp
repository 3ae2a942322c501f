#include "publish/PublishStream.h"

#include "markup/CharacterCodes.h"
#include "publish/AliasStage.h"
#include "publish/Aliases.h"
#include "publish/CharacterStage.h"
#include "publish/LineEndStage.h"
#include "publish/SlashStage.h"

#include <memory>
#include <vector>

namespace qly::publish {

namespace {

using core::TextEncoding;

bool writtenAsIs(const QString &text, TextEncoding encoding)
{
    return core::decodeText(core::encodeText(text, encoding), encoding) == text;
}

// The passes as stages, in their order.
class StageList : public PassTarget
{
public:
    explicit StageList(TextEncoding encoding)
        : m_encoding(encoding)
    {
    }
    void replaceLineEnds(const char *with) override { add(std::make_unique<LineEndStage>(with)); }
    void translateCharacters() override { add(std::make_unique<CharacterStage>(m_encoding)); }
    void applyAliases() override
    {
        for (const Alias &alias : Aliases())
            add(std::make_unique<AliasStage>(alias, m_encoding));
    }
    void convertSlashesToUnix() override { add(std::make_unique<SlashStage>()); }
    const std::vector<std::unique_ptr<ByteStage>> &stages() const { return m_stages; }

private:
    void add(std::unique_ptr<ByteStage> stage) { m_stages.push_back(std::move(stage)); }
    TextEncoding m_encoding;
    std::vector<std::unique_ptr<ByteStage>> m_stages;
};

} // namespace

bool canPublishBytes(const PassSettings &settings, TextEncoding encoding)
{
    if (settings.translateCharacters) {
        markup::EnsureCharacterCodes();
        for (const auto &row : markup::CharacterCodes()) {
            if (!writtenAsIs(row.entity, encoding))
                return false;
        }
        for (const auto &translation : markup::CharacterTranslations()) {
            if (!writtenAsIs(translation.second, encoding))
                return false;
        }
    }
    if (settings.useAliases) {
        for (const Alias &alias : Aliases()) {
            if (!writtenAsIs(alias.term, encoding) || !writtenAsIs(alias.replacement, encoding))
                return false;
        }
    }
    return true;
}

bool publishBytes(const QByteArray &page, TextEncoding encoding, const PassSettings &settings, const ByteSink &sink,
                  qsizetype pieceSize)
{
    StageList list(encoding);
    runPasses(settings, list);
    const auto &stages = list.stages();
    // Each stage reads from its own buffer and writes into the next one's;
    // the last writes into `out`, which goes to the sink when it is full.
    std::vector<QByteArray> inputs(stages.size());
    QByteArray out;
    const qsizetype block = 1024 * 1024;
    out.reserve(block + 4 * pieceSize);
    const char *data = page.constData();
    const qsizetype n = page.size();
    qsizetype at = 0;
    do {
        const qsizetype size = std::min(pieceSize, n - at);
        const bool last = at + size == n;
        QByteArray &first = stages.empty() ? out : inputs.front();
        first.append(data + at, size);
        at += size;
        for (size_t i = 0; i < stages.size(); ++i)
            stages[i]->run(inputs[i], last, i + 1 < stages.size() ? inputs[i + 1] : out);
        if (out.size() >= block || (last && !out.isEmpty())) {
            if (!sink(out.constData(), out.size()))
                return false;
            out.resize(0);
        }
    } while (at < n);
    return true;
}

} // namespace qly::publish
