#pragma once

#include "refhost/engine/Result.h"

#include <QByteArray>

/// What a packed task holds between its header and its checksum.
struct PackedContent
{
    int recordVersion = 0; ///< the version of the streams in which its records were written
    QByteArray bytes;
};

/// Whether `bytes` are a packed task, or the beginning of one: what they begin with decides.
bool isPackedTask(const QByteArray &bytes);

/// `content`, with records of this program's version, between header and checksum.
QByteArray packedFrame(const QByteArray &content);

/// Takes the content out of its frame. The problem, without file and place, is the first of these:
/// another form, a newer format, another length than the header says, a wrong checksum, records of
/// a newer version.
Result<PackedContent> openPackedFrame(const QByteArray &bytes);
