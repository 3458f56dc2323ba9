#pragma once

#include "refhost/validator/CheckInfo.h"
#include "refhost/validator/Outcome.h"

#include <memory>
#include <optional>

class CheckContext;
class QCoreApplication;

/// One thing that has to hold for every plug-in. It runs in a process of its own and may do to the
/// plug-in whatever a host could.
class Check
{
public:
    virtual ~Check();

    const CheckInfo &info() const { return m_info; }

    /// Does the check. What it `needs` is there. Says through the context what it is about to do
    /// before it calls into the plug-in, so that a crash can be told where it happened.
    virtual Outcome run(CheckContext &context) const = 0;

    /// Gives the check the ground it needs. Why that cannot be had, otherwise nothing. A check that
    /// loads the plug-in in a way of its own has nothing to prepare.
    virtual std::optional<QString> prepare(CheckContext &context) const;

    /// The application object to run under, by default one without a screen.
    virtual std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv) const;

protected:
    explicit Check(CheckInfo info);

private:
    Q_DISABLE_COPY_MOVE(Check)

    CheckInfo m_info;
};
