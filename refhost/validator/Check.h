#pragma once

#include "refhost/validator/CheckInfo.h"
#include "refhost/validator/Outcome.h"

#include <memory>

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

    /// The application object to run under, by default one without a screen.
    virtual std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv) const;

protected:
    explicit Check(CheckInfo info);

private:
    Q_DISABLE_COPY_MOVE(Check)

    CheckInfo m_info;
};
