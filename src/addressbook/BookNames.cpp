#include "addressbook/BookNames.h"

#include "base/Files.h"
#include "base/modMain.h"

#include <QFileInfo>

#include <string_view>

QString MakeFileName(QString bookName)
{
    return bookName.removeIf([](QChar c) {
        constexpr std::u16string_view Forbidden = u"\\/:*?\"<>|";
        return Forbidden.find(c.unicode()) != std::u16string_view::npos;
    });
}

QString freePath(const QString &folder, const QString &base, const QString &suffix)
{
    QString path = joinPath(folder, base + suffix);
    for (int number = 2; QFileInfo::exists(systemPath(path)); ++number)
        path = joinPath(folder, base + QStringLiteral(" (%1)").arg(number) + suffix);
    return path;
}
