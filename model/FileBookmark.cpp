#include "model/FileBookmark.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/stat.h>

#include <dirent.h>
#include <memory>

namespace norvin {

namespace {

const QString pathKey = QStringLiteral("path");
const QString inodeKey = QStringLiteral("inode");
const QString sizeKey = QStringLiteral("size");

} // namespace

std::optional<FileBookmark> FileBookmark::of(const QUrl& url) {
    if (!url.isLocalFile())
        return std::nullopt;
    FileBookmark bookmark;
    bookmark.m_path = QFileInfo(url.toLocalFile()).absoluteFilePath();
    bookmark.m_identity = identityOf(QFile::encodeName(bookmark.m_path));
    return bookmark;
}

std::optional<FileBookmark> FileBookmark::fromData(const QByteArray& data) {
    const QJsonObject object = QJsonDocument::fromJson(data).object();
    FileBookmark bookmark;
    bookmark.m_path = object.value(pathKey).toString();
    if (!QDir::isAbsolutePath(bookmark.m_path))
        return std::nullopt;
    // 64-bit numbers are texts: JSON numbers carry 53 bits.
    Identity identity;
    bool inodeOk = false;
    bool sizeOk = false;
    identity.inode = object.value(inodeKey).toString().toULongLong(&inodeOk);
    identity.size = object.value(sizeKey).toString().toULongLong(&sizeOk);
    if (inodeOk && sizeOk)
        bookmark.m_identity = identity;
    return bookmark;
}

QByteArray FileBookmark::toData() const {
    QJsonObject object{{pathKey, m_path}};
    if (m_identity) {
        object.insert(inodeKey, QString::number(m_identity->inode));
        object.insert(sizeKey, QString::number(m_identity->size));
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<QUrl> FileBookmark::resolve() const {
    if (QFileInfo::exists(m_path))
        return QUrl::fromLocalFile(m_path);
    if (!m_identity)
        return std::nullopt;

    const QByteArray folder = QFile::encodeName(QFileInfo(m_path).absolutePath());
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.constData()), ::closedir);
    if (!entries)
        return std::nullopt;
    while (const dirent* entry = ::readdir(entries.get())) {
        if (entry->d_ino != m_identity->inode)
            continue;
        // File systems give the number of a deleted file to the next new one, so the size has to agree too.
        const QByteArray path = folder + '/' + entry->d_name;
        if (identityOf(path) == m_identity)
            return QUrl::fromLocalFile(QFile::decodeName(path));
    }
    return std::nullopt;
}

std::optional<FileBookmark::Identity> FileBookmark::identityOf(const QByteArray& encodedPath) {
    struct stat status {};
    if (::stat(encodedPath.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return Identity{static_cast<quint64>(status.st_ino), static_cast<quint64>(status.st_size)};
}

} // namespace norvin
