// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvJsonPlace.h"
#include "CrvJsonTree.h"

#include <QCoreApplication>

#include <initializer_list>

/// Base of what reads a JSON file of ours: it opens and parses the file, and words what is wrong
/// with it in one way. The first refusal is kept, whatever is refused after it.
class CrvJsonReader {
    Q_DECLARE_TR_FUNCTIONS(CrvJsonReader)
public:
    /// In bytes; a larger file is refused unread.
    static constexpr qint64 maxFileSize = qint64 { 1 } << 30;

    CrvJsonReader(const CrvJsonReader&) = delete;
    CrvJsonReader& operator=(const CrvJsonReader&) = delete;

    /// Why the file was refused, empty if it wasn't: the file, the place, the reason. Where the
    /// text isn't JSON, the place is line and column of the byte at fault, which both count from 1
    /// (a column is a byte); where the content is wrong, it is the path of the value, as in
    /// "root.children[2].name".
    const QString& errorText() const { return m_error; }

protected:
    CrvJsonReader() = default;
    virtual ~CrvJsonReader() = default;

    /// Reads the file and builds what it describes. False for a refused file, also when there isn't
    /// enough memory for it.
    bool read(const QString& fileName);
    /// The same for the content of a file; `fileName` only stands in messages.
    bool readContent(QByteArray json, const QString& fileName);

    /// Called with the outermost value, an object or an array. May throw std::bad_alloc, for which
    /// the file is refused.
    virtual bool build(const CrvJsonValue& root) = 0;

    /// Each of these refuses a value that isn't of the kind that it is named after, with false.
    bool checkObject(const CrvJsonValue& value, const CrvJsonPlace& place);
    /// Refuses unknown members too: most often they are misspelled.
    bool checkObject(const CrvJsonValue& value, const CrvJsonPlace& place,
        std::initializer_list<QLatin1String> knownMembers);
    bool checkArray(const CrvJsonValue& value, const CrvJsonPlace& place);
    bool checkString(const CrvJsonValue& value, const CrvJsonPlace& place);

    /// The outermost place stands for the file as a whole. Always false.
    bool refuse(const CrvJsonPlace& place, const QString& reason);
    bool isRefused() const { return !m_error.isEmpty(); }

private:
    template <class Step>
    bool guarded(const QString& fileName, const Step& step);
    bool parse(QByteArray json);
    bool refuseKind(const CrvJsonValue& value, const CrvJsonPlace& place, const QString& expected);

    QString m_fileName; // with line and column, once they are known
    QString m_error;
};
