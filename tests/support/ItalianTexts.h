#pragma once

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

/// The texts of the program are Italian while it lives. Its user links sorvanta_texts.
class ItalianTexts
{
public:
    ItalianTexts()
    {
        if (!m_translator.load(QStringLiteral(":/i18n/sorvanta_it.qm")))
            QTest::qFail("the Italian texts are not there", __FILE__, __LINE__);
        QCoreApplication::installTranslator(&m_translator);
    }
    ItalianTexts(const ItalianTexts &) = delete;
    ItalianTexts &operator=(const ItalianTexts &) = delete;
    ~ItalianTexts() { QCoreApplication::removeTranslator(&m_translator); }

private:
    QTranslator m_translator;
};
