#include "benchmarks/SampleText.h"

#include <algorithm>

namespace {

/// Each letter as often as it is found among a hundred letters of English text, roughly. The q
/// brings its u with it.
QString englishLetters()
{
    return QStringLiteral("eeeeeeeeeeeetttttttttaaaaaaaaooooooooiiiiiiinnnnnnnsssssshhhhhhrrrrrr"
                          "ddddllllccccuuummmwwffggyyppbbvkjxqz");
}

/// Frequent Chinese characters, the most frequent first.
QString chineseCharacters()
{
    return QStringLiteral("的一是不了人我在有他这为之大来以个中上们到说国和地也子时道出而要于就下"
                          "得可你年生自会那后能对着事其里所去行过家十用发天如然作方成者多日都三小军"
                          "二无同么经法当起与好看学进种将还分此心前面又定见只主没公从知使身己样民");
}

} // namespace

SampleText::SampleText(Alphabet alphabet, quint32 seed)
    : m_alphabet(alphabet)
    , m_random(seed)
{
}

QString SampleText::text(int size)
{
    QString text;
    text.reserve(size + 256);
    while (text.size() < size)
        appendSentence(text);
    text.truncate(size);
    if (size > 0)
        text[size - 1] = letter();
    return text;
}

QString SampleText::letters(int size)
{
    QString letters(size, Qt::Uninitialized);
    std::generate(letters.begin(), letters.end(), [this] { return letter(); });
    return letters;
}

QString SampleText::textWith(const QString &inserted, int distance, int size)
{
    QString result = text(size);
    for (int end = distance; end <= size; end += distance)
        result.replace(end - inserted.size(), inserted.size(), inserted);
    return result;
}

QString SampleText::absentText() const
{
    // Between q and i there is always a u, and no sentence begins with a comma.
    return m_alphabet == Alphabet::Ascii ? QStringLiteral("eqi") : QStringLiteral("的，。");
}

QString SampleText::separator() const
{
    return m_alphabet == Alphabet::Ascii ? QStringLiteral(";") : QStringLiteral("；");
}

QString SampleText::longSeparator() const
{
    return m_alphabet == Alphabet::Ascii ? QStringLiteral(" | ") : QStringLiteral("，｜，");
}

QString SampleText::repetition(int size) const
{
    return QString(size, m_alphabet == Alphabet::Ascii ? QChar(u'a') : QChar(u'中'));
}

QString SampleText::repetitionBut(int position, int size) const
{
    QString text = repetition(size);
    text[position] = m_alphabet == Alphabet::Ascii ? QChar(u'b') : QChar(u'文');
    return text;
}

int SampleText::below(int limit)
{
    // The standard's distributions differ from library to library, its engines do not.
    return static_cast<int>(m_random() % static_cast<quint32>(limit));
}

QChar SampleText::letter()
{
    if (m_alphabet == Alphabet::Ascii) {
        static const QString pool = englishLetters();
        return pool.at(below(pool.size()));
    }
    static const QString pool = chineseCharacters();
    return pool.at(std::min(below(pool.size()), below(pool.size())));
}

void SampleText::appendWord(QString &text)
{
    const int size = 1 + below(4) + below(6);
    for (int i = 0; i < size; ++i) {
        text += letter();
        if (text.endsWith(QLatin1Char('q')))
            text += QLatin1Char('u');
    }
}

void SampleText::appendSentence(QString &text)
{
    const bool isAscii = m_alphabet == Alphabet::Ascii;
    const int begin = text.size();
    const int words = 4 + below(8);
    for (int i = 0; i < words; ++i) {
        if (isAscii && i > 0)
            text += QLatin1Char(' ');
        appendWord(text);
        if (i + 1 < words && below(isAscii ? 8 : 3) == 0)
            text += isAscii ? QChar(u',') : QChar(u'，');
    }
    text[begin] = text.at(begin).toUpper();
    text += isAscii ? QStringLiteral(". ") : QStringLiteral("。");
}
