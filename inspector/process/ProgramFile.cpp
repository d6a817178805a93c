// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <vector>

#include <elf.h>
#include <link.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);
using Entry = ElfW(Dyn);

// Of sane files; a program's table of dynamic entries has some thirty.
constexpr std::size_t maxItems = 4096;
constexpr int maxNameLength = 256;

QString tr(const char* text) { return QCoreApplication::translate("ProgramFile", text); }

/// Reads from anywhere in a file; what lies outside of it is refused.
class ElfFile {
public:
    explicit ElfFile(const QByteArray& name)
        : m_file(QFile::decodeName(name))
    {
        m_isElf = m_file.open(QIODevice::ReadOnly) && read(0, &m_header, 1)
            && std::memcmp(m_header.e_ident, ELFMAG, SELFMAG) == 0;
    }

    bool isElf() const { return m_isElf; }

    bool isForThisMachine() const
    {
        const Header own = ownHeader();
        return m_header.e_ident[EI_CLASS] == own.e_ident[EI_CLASS]
            && m_header.e_ident[EI_DATA] == own.e_ident[EI_DATA]
            && m_header.e_machine == own.e_machine;
    }

    /// No value for a file that makes no sense.
    std::optional<std::vector<Segment>> segments()
    {
        if (m_header.e_phentsize != sizeof(Segment))
            return std::nullopt;
        return table<Segment>(m_header.e_phoff, m_header.e_phnum);
    }

    /// The libraries that the program is linked with.
    QByteArrayList libraries(const std::vector<Segment>& segments)
    {
        QByteArrayList names;
        const auto dynamic = std::find_if(segments.begin(), segments.end(),
            [](const Segment& segment) { return segment.p_type == PT_DYNAMIC; });
        if (dynamic == segments.end())
            return names;
        const auto entries = table<Entry>(dynamic->p_offset, dynamic->p_filesz / sizeof(Entry));
        if (!entries)
            return names;
        qint64 strings = -1;
        for (const Entry& entry : *entries) {
            if (entry.d_tag == DT_STRTAB)
                strings = offsetOf(entry.d_un.d_ptr, segments);
        }
        for (const Entry& entry : *entries) {
            if (entry.d_tag == DT_NEEDED && strings >= 0)
                names += text(strings + static_cast<qint64>(entry.d_un.d_val));
        }
        return names;
    }

private:
    static Header ownHeader()
    {
        Header header = {};
        QFile own(QStringLiteral("/proc/self/exe"));
        if (own.open(QIODevice::ReadOnly))
            own.read(reinterpret_cast<char*>(&header), sizeof header);
        return header;
    }

    static qint64 offsetOf(ElfW(Addr) address, const std::vector<Segment>& segments)
    {
        for (const Segment& segment : segments) {
            if (segment.p_type == PT_LOAD && address >= segment.p_vaddr
                && address - segment.p_vaddr < segment.p_filesz)
                return qint64(address) - qint64(segment.p_vaddr) + qint64(segment.p_offset);
        }
        return -1;
    }

    template <class Item>
    bool read(qint64 offset, Item* items, std::size_t count)
    {
        const qint64 size = qint64(count) * qint64(sizeof(Item));
        return m_file.seek(offset) && m_file.read(reinterpret_cast<char*>(items), size) == size;
    }

    template <class Item>
    std::optional<std::vector<Item>> table(ElfW(Off) offset, std::size_t count)
    {
        std::vector<Item> items(std::min(count, maxItems));
        if (!read(static_cast<qint64>(offset), items.data(), items.size()))
            return std::nullopt;
        return items;
    }

    QByteArray text(qint64 offset)
    {
        QByteArray bytes = m_file.seek(offset) ? m_file.read(maxNameLength) : QByteArray();
        return bytes.left(bytes.indexOf('\0'));
    }

    QFile m_file;
    Header m_header = {};
    bool m_isElf = false;
};

/// For such a program the dynamic linker preloads nothing from a folder that a user has named.
bool hasOtherRights(const QByteArray& file)
{
    struct stat status = {};
    if (stat(file.constData(), &status) != 0)
        return false;
    if ((status.st_mode & S_ISUID) != 0 && status.st_uid != getuid())
        return true;
    if ((status.st_mode & S_ISGID) != 0 && status.st_gid != getgid())
        return true;
    return getuid() != 0 && getxattr(file.constData(), "security.capability", nullptr, 0) > 0;
}

QByteArray interpreterOf(const QByteArray& file)
{
    QFile script(QFile::decodeName(file));
    const QByteArray line = script.open(QIODevice::ReadOnly)
        ? script.readLine(maxNameLength).trimmed()
        : QByteArray();
    return line.startsWith("#!") ? line.mid(2).trimmed().split(' ').constFirst() : QByteArray();
}

} // namespace

QByteArray ProgramFile::find(const QByteArray& name)
{
    if (name.contains('/'))
        return access(name.constData(), F_OK) == 0 ? name : QByteArray();
    for (const QByteArray& folder : qgetenv("PATH").split(':')) {
        const QByteArray file = (folder.isEmpty() ? QByteArrayLiteral(".") : folder) + '/' + name;
        if (access(file.constData(), X_OK) == 0 && QFileInfo(QFile::decodeName(file)).isFile())
            return file;
    }
    return QByteArray();
}

QString ProgramFile::objection(const QByteArray& file)
{
    if (hasOtherRights(file)) {
        return tr("it runs with other rights than yours, and the system preloads nothing into "
                  "such a program");
    }
    ElfFile elf(file);
    if (!elf.isElf())
        return QString();
    if (!elf.isForThisMachine())
        return tr("it is a program for another kind of machine than the inspector");
    const auto segments = elf.segments();
    if (!segments)
        return QString();
    if (std::none_of(segments->begin(), segments->end(),
            [](const Segment& segment) { return segment.p_type == PT_INTERP; }))
        return tr("it is linked statically, so nothing can be preloaded into it");
    for (const QByteArray& library : elf.libraries(*segments)) {
        if (library.startsWith("libQt5Core.so") || library.startsWith("libQtCore.so"))
            return tr("it is a program of Qt %1, and the inspector is one of Qt 6")
                .arg(library.startsWith("libQt5") ? 5 : 4);
    }
    return QString();
}

QString ProgramFile::startError(const QByteArray& file, int error)
{
    if (QFileInfo(QFile::decodeName(file)).isDir())
        return tr("this is a folder");
    const QByteArray interpreter = interpreterOf(file);
    if (error == ENOENT && !interpreter.isEmpty())
        return tr("its interpreter %1 is missing").arg(QFile::decodeName(interpreter));
    return QString::fromLocal8Bit(std::strerror(error));
}
