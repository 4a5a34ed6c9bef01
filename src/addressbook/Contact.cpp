#include "addressbook/Contact.h"

QString DisplayName(const QString &name, const QString &company)
{
    if (company.isEmpty())
        return name;
    if (name.isEmpty())
        return company;
    return name + QLatin1String(" - ") + company;
}
