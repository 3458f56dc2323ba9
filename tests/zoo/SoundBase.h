#pragma once

#include "Operation.h"

#include <QDataStream>
#include <QMetaProperty>

/// What the operations of the zoo have in common, less their annotations: four values, their
/// accessors, and a record and a copy of whichever of them a class declares as properties.
class SoundBase : public Operation
{
public:
    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }
    int mode() const { return m_mode; }
    void setMode(int mode) { m_mode = mode; }
    QString suffix() const { return m_suffix; }
    void setSuffix(const QString &suffix) { m_suffix = suffix; }
    QString resultVar() const { return m_resultVar; }
    void setResultVar(const QString &name) { m_resultVar = name; }

    QString root() const override { return QStringLiteral("Zoo"); }
    QString typeId() const override { return QStringLiteral("zoo.sound"); }
    QString typeName() const override { return QStringLiteral("Sound"); }
    QString icon() const override { return QStringLiteral(":/zoo/sound.svg"); }
    QString toString() const override { return typeName() + QStringLiteral(": ") + m_text; }
    QString description() const override { return QStringLiteral("Does what it should."); }
    void doOperation() const override;
    void saveOperation(QDataStream &stream) const override;
    void loadOperation(QDataStream &stream) override;

protected:
    /// Takes over the properties and the host's state.
    void copyFrom(const SoundBase &other);

    /// The text that the operation stores.
    QString result() const;

    /// The text that an operand stands for.
    virtual QString valueOf(const QString &operand) const;

private:
    QString m_text;
    int m_mode = 0;
    QString m_suffix;
    QString m_resultVar;
};
