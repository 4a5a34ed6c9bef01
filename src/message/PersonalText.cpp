#include "message/PersonalText.h"

QString withName(QString text, const QString &name)
{
    return text.replace(QLatin1String("*NOME*"), name);
}
