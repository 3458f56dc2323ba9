#include "refhost/workbench/variables/TextFile.h"

#include "refhost/engine/FileBytes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextCodec>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TextFile)
};

constexpr qint64 mostBytes = qint64(1) << 29;

const QTextCodec *utf8()
{
    return QTextCodec::codecForName("UTF-8");
}

Problem refused(Problem::Reason reason, const QString &path, const QString &message)
{
    return {reason, path, {}, message};
}

} // namespace

Result<QString> readTextFile(const QString &path)
{
    const QString name = QDir::toNativeSeparators(path);
    if (QFileInfo(path).size() > mostBytes)
        return refused(Problem::Reason::UnreadableFile, path,
                       Texts::tr("文件“%1”太大。").arg(name));
    const Result<QByteArray> bytes = readFileBytes(path);
    if (!bytes) {
        return refused(Problem::Reason::UnreadableFile, path,
                       Texts::tr("读不出文件“%1”：%2").arg(name, bytes.problem().message));
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString text = utf8()->toUnicode(bytes.value().constData(), bytes.value().size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        return refused(Problem::Reason::MalformedContent, path,
                       Texts::tr("文件“%1”不是 UTF-8 编码的文本。").arg(name));
    }
    return text;
}

std::optional<Problem> writeTextFile(const QString &path, const QString &text)
{
    const QString name = QDir::toNativeSeparators(path);
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QByteArray bytes = utf8()->fromUnicode(text.constData(), text.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        return refused(
            Problem::Reason::UnwritableFile, path,
            Texts::tr("文本中有不成对的代理项，无法写成 UTF-8；文件“%1”没有改动。").arg(name));
    }
    if (const auto problem = writeFileBytes(path, bytes)) {
        return refused(Problem::Reason::UnwritableFile, path,
                       Texts::tr("写不了文件“%1”：%2").arg(name, problem->message));
    }
    return std::nullopt;
}
