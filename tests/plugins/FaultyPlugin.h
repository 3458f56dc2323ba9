#pragma once

#include "IOperationPlugin.h"
#include "Operation.h"
#include "VariableScope.h"

#include <QFile>
#include <QObject>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <map>
#include <new>
#include <stdexcept>
#include <thread>

#include <unistd.h>

/// What a step or a plug-in must not do, by name. A file "begun" in the current folder tells that
/// it begins.
inline void commitFault(const QString &fault)
{
    if (!fault.isEmpty())
        QFile("begun").open(QIODevice::WriteOnly);
    static const std::map<QString, std::function<void()>> faults{
        {"throw", [] { throw std::runtime_error("disk on fire"); }},
        {"throw int", [] { throw 42; }},
        {"throw bad_alloc", [] { throw std::bad_alloc(); }},
        {"exit", [] { std::exit(0); }},
        {"_exit", [] { ::_exit(0); }},
        {"abort", [] { std::abort(); }},
        {"crash", [] { *static_cast<volatile int *>(nullptr) = 0; }},
        {"overflow",
         [] {
             const std::function<int(volatile int *)> deeper = [&](volatile int *outer) {
                 volatile int inner[512] = {*outer};
                 return deeper(inner) + inner[0];
             };
             volatile int first = 0;
             deeper(&first);
         }},
        {"loop",
         [] {
             for (volatile unsigned i = 0;; i = i + 1) {
             }
         }},
        {"block", [] { std::this_thread::sleep_for(std::chrono::hours(1)); }},
        {"pause", [] { std::this_thread::sleep_for(std::chrono::milliseconds(300)); }},
    };
    const auto found = faults.find(fault);
    if (found != faults.end())
        found->second();
}

/// A step that copies the variable "n" to "r" or another, and commits its fault afterwards, if its
/// property "row" is empty or the value of "n".
class FaultyOperation : public Operation
{
    Q_OBJECT
    Q_PROPERTY(QString fault READ fault WRITE setFault)
    Q_PROPERTY(QString row READ row WRITE setRow)
    Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)

public:
    using Operation::Operation;

    QString fault() const { return m_fault; }
    void setFault(const QString &fault) { m_fault = fault; }
    QString row() const { return m_row; }
    void setRow(const QString &row) { m_row = row; }

    QString resultVar() const { return m_resultVar; }
    void setResultVar(const QString &name) { m_resultVar = name; }

    QString root() const override { return "faulty"; }
    QString typeId() const override { return "faulty.step"; }
    QString typeName() const override { return "faulty"; }
    QString icon() const override { return {}; }
    QString toString() const override { return "faulty"; }
    QString description() const override { return "faulty"; }

    void doOperation() const override
    {
        if (!scope)
            return;
        const QString number = scope->get("n").toString();
        scope->set(m_resultVar, number);
        if (m_row.isEmpty() || m_row == number)
            commitFault(m_fault);
    }
    Operation *clone(QObject *parent) const override
    {
        auto *copy = new FaultyOperation(parent);
        copy->m_fault = m_fault;
        copy->m_row = m_row;
        copy->m_resultVar = m_resultVar;
        return copy;
    }

private:
    QString m_fault;
    QString m_row;
    QString m_resultVar = "r";
};

/// A plug-in with that step. It commits the fault that the environment variable FAULT_AT_LOAD
/// names while it is loaded, and the one of FAULT_AT_END when its library is unloaded.
class FaultyPlugin : public QObject, public IOperationPlugin
{
    Q_OBJECT
    Q_INTERFACES(IOperationPlugin)
    Q_PLUGIN_METADATA(IID IOperationPlugin_iid)

public:
    QList<Operation *> createPrototypes() override
    {
        commitFault(qEnvironmentVariable("FAULT_AT_LOAD"));
        static const struct AtEnd
        {
            ~AtEnd() { commitFault(qEnvironmentVariable("FAULT_AT_END")); }
        } atEnd;
        return {new FaultyOperation};
    }
    QString pluginId() const override { return "org.example.Faulty"; }
    QString name() const override { return "faulty"; }
    QString version() const override { return "1.0.0"; }
    int apiVersion() const override { return 2; }
    PluginManifest manifest() const override
    {
        PluginManifest manifest;
        manifest.id = pluginId();
        manifest.name = name();
        manifest.version = version();
        manifest.apiVersion = 2;
        manifest.typeIdPrefix = "faulty.";
        manifest.rootOrder = {{"faulty", 100}};
        return manifest;
    }
    QStringList requiredCapabilities() const override { return {}; }
};
