#include "refhost/validator/checks/MessagesCheck.h"

#include "refhost/validator/trials/OperationRecord.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

#include <QRegularExpression>

namespace {

void examineMessage(Specimen &specimen, const QString &place, const LoggedMessage &message)
{
    static const QRegularExpression tag(QStringLiteral("^\\[[^\\]\\s]+\\]"));
    const QString said = QStringLiteral("%1: %2").arg(place, shownText(message.text));
    if (message.type != QtWarningMsg) {
        specimen.fail(QStringLiteral("%1 is a %2 message; expected warnings only")
                          .arg(said, message.typeWord()));
    } else if (message.text.contains(QLatin1Char('\n'))) {
        specimen.fail(said + QStringLiteral(" is more than one line"));
    } else if (!tag.match(message.text).hasMatch()) {
        specimen.warn(said + QStringLiteral(" does not begin with a tag such as \"[Tag]\""));
    }
    if (!message.place.isEmpty()) {
        specimen.warn(QStringLiteral("%1 names its place in the source, %2")
                          .arg(said, message.place.section(QLatin1Char('/'), -1)));
    }
}

void examineRuns(Specimen &specimen)
{
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const VarType type : {specimen.resultType(), VarType::None, VarType::List}) {
        for (const TrialSetting &setting : settings) {
            const StepTrial trial = tryStep(specimen, setting, type);
            for (const LoggedMessage &message : trial.trace.messages)
                examineMessage(specimen, setting.toString(), message);
        }
    }
}

/// Everything but a run is silent.
void examineSilence(Specimen &specimen, const TrialSetting &setting)
{
    specimen.doing(QStringLiteral("messages, ") + setting.toString());
    const auto step = specimen.newStep();
    const auto demandSilence = [&](const QString &function, const auto &call) {
        MessageLog log;
        thrownBy(call);
        const QList<LoggedMessage> messages = log.take();
        if (!messages.isEmpty()) {
            specimen.fail(
                QStringLiteral("%1: %2 logs %3; expected nothing")
                    .arg(setting.toString(), function, shownText(messages.constFirst().text)));
        }
    };
    demandSilence(QStringLiteral("a setter"), [&] {
        setOrdinary(*step, specimen.schema());
        setting.applyTo(*step);
    });
    demandSilence(QStringLiteral("toString"), [&] { step->toString(); });
    demandSilence(QStringLiteral("description"), [&] { step->description(); });
    demandSilence(QStringLiteral("clone"), [&] { delete step->clone(nullptr); });
    SavedRecord saved;
    demandSilence(QStringLiteral("saveOperation"), [&] { saved = saveRecord(*step); });
    demandSilence(QStringLiteral("loadOperation"), [&] { loadRecord(*step, saved.bytes); });
}

} // namespace

MessagesCheck::MessagesCheck()
    : OperationCheck({QStringLiteral("behaviour.messages"), 4,
                      QStringLiteral("Only runs log, warnings only, in one line with a tag.")})
{
}

void MessagesCheck::examine(Specimen &specimen, CheckContext &) const
{
    examineRuns(specimen);
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const TrialSetting &setting : settings)
        examineSilence(specimen, setting);
}
