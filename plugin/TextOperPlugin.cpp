#include "plugin/TextOperPlugin.h"

#include "plugin/Contribution.h"

#include "operations/TextAppendOperation.h"
#include "operations/TextBetweenOperation.h"
#include "operations/TextCaseOperation.h"
#include "operations/TextFindOperation.h"
#include "operations/TextFromNumberOperation.h"
#include "operations/TextJoinOperation.h"
#include "operations/TextPadOperation.h"
#include "operations/TextReplaceOperation.h"
#include "operations/TextReverseOperation.h"
#include "operations/TextSplitOperation.h"
#include "operations/TextSubstringOperation.h"
#include "operations/TextToNumberOperation.h"
#include "operations/TextTrimOperation.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>

namespace {

constexpr int interfaceVersion = 2;

/// The operations in the order of the prototypes, each with its weight in the catalogue. The host
/// sorts the catalogue by weight, so the two orders differ.
const Contribution contributions[] = {
    contribution<TextAppendOperation>(0),       contribution<TextSubstringOperation>(80),
    contribution<TextPadOperation>(40),         contribution<TextBetweenOperation>(10),
    contribution<TextTrimOperation>(90),        contribution<TextReverseOperation>(60),
    contribution<TextCaseOperation>(120),       contribution<TextToNumberOperation>(100),
    contribution<TextFromNumberOperation>(110), contribution<TextJoinOperation>(20),
    contribution<TextSplitOperation>(30),       contribution<TextFindOperation>(70),
    contribution<TextReplaceOperation>(50),
};

constexpr std::size_t contributionCount = std::size(contributions);

/// Returns the contributions by ascending weight, which is the order of the catalogue.
std::array<Contribution, contributionCount> catalogueOrder()
{
    std::array<Contribution, contributionCount> sorted{};
    std::copy(std::begin(contributions), std::end(contributions), sorted.begin());
    std::sort(sorted.begin(), sorted.end(),
              [](const Contribution &left, const Contribution &right) {
                  return left.weight < right.weight;
              });
    return sorted;
}

QStringList neededCapabilities()
{
    return {QStringLiteral("hasListType")};
}

} // namespace

TextOperPlugin::TextOperPlugin() = default;

TextOperPlugin::~TextOperPlugin() = default;

QList<Operation *> TextOperPlugin::createPrototypes()
{
    // All are constructed before the list is filled, so that none leaks if a constructor throws.
    std::array<std::unique_ptr<Operation>, contributionCount> created;
    std::transform(std::begin(contributions), std::end(contributions), created.begin(),
                   [](const Contribution &contribution) {
                       return std::unique_ptr<Operation>(contribution.create());
                   });
    QList<Operation *> prototypes;
    prototypes.reserve(static_cast<int>(contributionCount));
    for (std::unique_ptr<Operation> &operation : created)
        prototypes.append(operation.release());
    return prototypes;
}

QString TextOperPlugin::pluginId() const
{
    return QStringLiteral("com.quorlent.Brimwork.TextOperPlugin");
}

QString TextOperPlugin::name() const
{
    // In the context all plug-ins of the host share for their names, not in that of this class.
    return QObject::tr("文本操作插件");
}

QString TextOperPlugin::version() const
{
    return QStringLiteral("1.0.0");
}

int TextOperPlugin::apiVersion() const
{
    return interfaceVersion;
}

PluginManifest TextOperPlugin::manifest() const
{
    PluginManifest manifest;
    manifest.id = pluginId();
    manifest.name = name();
    manifest.version = version();
    manifest.apiVersion = interfaceVersion;
    manifest.typeIdPrefix = QStringLiteral("text.");
    manifest.requiredCapabilities = neededCapabilities();
    manifest.rootOrder.insert(QStringLiteral("文本"), 500);
    for (const Contribution &contribution : catalogueOrder())
        manifest.typeOrder.insert(contribution.typeId(), contribution.weight);
    return manifest;
}

QStringList TextOperPlugin::requiredCapabilities() const
{
    return neededCapabilities();
}
