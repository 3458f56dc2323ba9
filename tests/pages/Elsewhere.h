#pragma once

#include <QString>
#include <QVector>

/// A command of the pages that is not typed to see whether the page is true: it builds, installs,
/// takes minutes or needs what is not there. It says what runs it instead.
struct Elsewhere
{
    enum class By {
        Test,  ///< a test, by its name
        Ci,    ///< a line of .ci/run
        People ///< nothing but people; the reason
    };

    QString command; ///< as `PageCommand::plainText` gives it, or a page
    By by = By::Test;
    QString what; ///< the name, the line or the reason
};

/// All of them.
QVector<Elsewhere> commandsRunElsewhere();

/// Pages whose fenced blocks hang together and are typed by something else, all in one go.
QVector<Elsewhere> pagesRunElsewhere();
