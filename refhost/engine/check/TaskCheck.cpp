#include "refhost/engine/check/TaskCheck.h"

#include "refhost/engine/check/ChoiceRules.h"
#include "refhost/engine/check/FlowRules.h"
#include "refhost/engine/check/LiteralRules.h"
#include "refhost/engine/check/NameRules.h"
#include "refhost/engine/check/NumberRules.h"
#include "refhost/engine/check/ReferenceRules.h"
#include "refhost/engine/check/SearchRules.h"
#include "refhost/engine/check/TaskFacts.h"
#include "refhost/engine/check/TypeRules.h"

#include <algorithm>

namespace {

void checkSetting(const Setting &setting, const QList<SettingRule> &rules, const TaskFacts &facts,
                  QList<Finding> &findings)
{
    for (const SettingRule rule : rules) {
        if (const auto finding = rule(setting, facts))
            findings.append(*finding);
    }
}

/// Where a finding stands in the task, to be compared: the step, then the property.
std::pair<int, int> placeInTask(const Finding &finding, const TaskFacts &facts)
{
    if (finding.step < 0)
        return {facts.steps().size(), 0};
    const QVector<Setting> &step = facts.steps().at(finding.step);
    const auto setting = std::find_if(step.begin(), step.end(), [&](const Setting &candidate) {
        return candidate.schema.name == finding.property;
    });
    return {finding.step, static_cast<int>(setting - step.begin())};
}

} // namespace

QList<Finding> checkTask(const Task &task, const OperationCatalog &catalog, const FactBook &book)
{
    const TaskFacts facts(task, catalog, book);
    const QList<SettingRule> shown = referenceRules() + typeRules() + numberRules() +
                                     literalRules() + searchRules() + nameRules() + choiceRules();
    const QList<SettingRule> hidden = hiddenRules();
    QList<Finding> findings;
    for (const QVector<Setting> &step : facts.steps()) {
        for (const Setting &setting : step)
            checkSetting(setting, setting.isShown ? shown : hidden, facts, findings);
    }
    QSet<QString> meant;
    for (const Finding &finding : qAsConst(findings))
        meant.insert(finding.meant);
    findings += flowFindings(facts, meant);
    std::stable_sort(findings.begin(), findings.end(),
                     [&](const Finding &left, const Finding &right) {
                         return placeInTask(left, facts) < placeInTask(right, facts);
                     });
    return findings;
}
