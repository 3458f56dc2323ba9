#pragma once

#include "OperationCoreExport.h"
#include "PluginManifest.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QtPlugin>

class IEditorRegistry;
class Operation;

/// The interface identifier, stated here and nowhere else.
#define IOperationPlugin_iid "com.quorlent.Brimwork.IOperationPlugin/1.0"

/// What the host asks of the root object of a plug-in.
///
/// A plug-in is a shared library with one root object: a `QObject` that also implements this
/// interface. A complete plug-in with one kind of step:
///
///     // GreetOperation.h
///     class GreetOperation : public Operation
///     {
///         Q_OBJECT
///         // The editor of a step is built from these entries and the properties below.
///         Q_CLASSINFO("prop_who", "问候谁")
///         Q_CLASSINFO("editor_who", "VARREF")
///         Q_CLASSINFO("varref_kind_who", "string")
///         Q_CLASSINFO("prop_resultVar", "保存到字符串变量")
///         Q_CLASSINFO("editor_resultVar", "VARNAME:STRING")
///         Q_CLASSINFO("varname_type_resultVar", "string")
///         Q_PROPERTY(QString who READ who WRITE setWho)
///         Q_PROPERTY(QString resultVar READ resultVar WRITE setResultVar)
///
///     public:
///         explicit GreetOperation(QObject *parent = nullptr) : Operation(parent) {}
///
///         QString who() const { return m_who; }
///         void setWho(const QString &who) { m_who = who; }
///         QString resultVar() const { return m_resultVar; }
///         void setResultVar(const QString &name) { m_resultVar = name; }
///
///         QString root() const override { return tr("问候"); }
///         QString typeId() const override { return QStringLiteral("greet.hello"); }
///         QString typeName() const override { return tr("问候"); }
///         QString icon() const override { return QStringLiteral(":/images/greet_hello.svg"); }
///         QString toString() const override { return typeName() + QStringLiteral(": ") + m_who; }
///         QString description() const override { return tr("问候 %1").arg(m_who); }
///
///         void doOperation() const override
///         {
///             if (!scope)
///                 return;
///             if (!m_resultVar.isEmpty() && scope->typeOf(m_resultVar) == VarType::String)
///                 scope->set(m_resultVar, QStringLiteral("你好，") + m_who);
///             else
///                 QMessageLogger().warning() << "[Greet] 没有可写入的字符串变量" << m_resultVar;
///         }
///         void saveOperation(QDataStream &stream) const override
///         {
///             Operation::saveOperation(stream);
///             stream << m_who << m_resultVar;
///         }
///         void loadOperation(QDataStream &stream) override
///         {
///             Operation::loadOperation(stream);
///             stream >> m_who >> m_resultVar;
///         }
///         Operation *clone(QObject *parent) const override
///         {
///             auto *copy = new GreetOperation(parent);
///             copy->m_who = m_who;
///             copy->m_resultVar = m_resultVar;
///             copy->baseState = baseState;
///             return copy;
///         }
///
///     private:
///         QString m_who;
///         QString m_resultVar;
///     };
///
///     // GreetPlugin.h
///     class GreetPlugin : public QObject, public IOperationPlugin
///     {
///         Q_OBJECT
///         Q_INTERFACES(IOperationPlugin)
///         Q_PLUGIN_METADATA(IID IOperationPlugin_iid)
///
///     public:
///         QList<Operation *> createPrototypes() override { return {new GreetOperation}; }
///         QString pluginId() const override { return QStringLiteral("org.example.Greet"); }
///         QString name() const override { return tr("问候插件"); }
///         QString version() const override { return QStringLiteral("1.0.0"); }
///         int apiVersion() const override { return 2; }
///         PluginManifest manifest() const override
///         {
///             PluginManifest manifest;
///             manifest.id = pluginId();
///             manifest.name = name();
///             manifest.version = version();
///             manifest.apiVersion = 2;
///             manifest.typeIdPrefix = QStringLiteral("greet.");
///             manifest.rootOrder = {{QStringLiteral("问候"), 100}};
///             manifest.typeOrder = {{QStringLiteral("greet.hello"), 0}};
///             return manifest;
///         }
///         QStringList requiredCapabilities() const override { return {}; }
///     };
///
/// **Calling order.** The host loads the library through Qt, obtains the root object once and casts
/// it with `qobject_cast<IOperationPlugin *>`. It may ask for identity, manifest and capabilities
/// at any time and as often as it likes; these calls have no side effects. It refuses a plug-in
/// whose `apiVersion` differs from its own or that requires a capability it lacks. It then calls
/// `registerEditors` and `createPrototypes`. A step of a task is a `clone` of a prototype, with its
/// properties set by the editor or read by `loadOperation`; before it runs, `setVariableScope` is
/// called, then `doOperation`, any number of times.
///
/// **Ownership.** The root object belongs to Qt's plug-in loader. Prototypes and clones belong to
/// the caller (or to the parent given to `clone`); the plug-in keeps no pointer to them. The scope
/// belongs to the host. Before the host unloads a library it deletes every object that came from it
/// and lets go of every text that did: a `QStringLiteral` points into the library.
///
/// **Threads.** All calls to the root object come on the host's main thread. An operation is used
/// on one thread at a time, each with a scope of its own; a plug-in therefore keeps no state that
/// its operations share and change.
///
/// **Values.** `VariableScope::get` gives an invalid `QVariant` for a variable that is not declared
/// or has no value. It is not an error: a step takes it for an empty text or for "not a number".
///
/// **Failures.** Nothing is thrown across this interface. A step that cannot do its work leaves the
/// scope as it was and writes one line with `QMessageLogger::warning`.
class OPERATIONCORE_EXPORT IOperationPlugin
{
public:
    IOperationPlugin();
    virtual ~IOperationPlugin();

    /// One new object, without a parent, of each kind of step the plug-in contributes. Every call
    /// makes fresh objects, which the caller has to delete.
    virtual QList<Operation *> createPrototypes() = 0;

    /// The identifier of the plug-in, in reverse domain form. Never translated.
    virtual QString pluginId() const = 0;
    /// The display name, translated.
    virtual QString name() const = 0;
    /// The version of the plug-in, "major.minor.patch".
    virtual QString version() const = 0;
    /// The version of this interface that the plug-in is built for, currently 2.
    virtual int apiVersion() const = 0;
    /// Everything the host needs to place the plug-in in its catalogue.
    virtual PluginManifest manifest() const = 0;

    /// Lets a plug-in register property editors of its own. The default registers none.
    virtual void registerEditors(IEditorRegistry &registry);

    /// The host capabilities without which the plug-in is of no use, such as "hasListType".
    virtual QStringList requiredCapabilities() const = 0;

private:
    Q_DISABLE_COPY_MOVE(IOperationPlugin)
};

Q_DECLARE_INTERFACE(IOperationPlugin, IOperationPlugin_iid)
