#pragma once

#include "BoxDriver.h"
#include "ui/LineList.h"
#include "ui/frmAccount.h"

#include <QToolButton>

/// A main window with a server, its account, and what a user does to its page.
template <typename BaseRig>
struct AccountRigOf : BaseRig
{
    inline static const QString Host = QStringLiteral("smtp.example.org");
    /// Of a certificate that does not verify.
    inline static const QByteArray Fingerprint = QByteArray(32, '\xab');

    explicit AccountRigOf(const ServerAccount &account = {}, Language language = Language::English)
        : BaseRig(language)
    {
        this->show();
        this->core->fillForm(3);
        this->core->w.form.setText(Control::txtServer, Host + QStringLiteral(":587"));
        this->core->w.form.setProjectModified(false);
        this->side->accounts.setAccount(Host, account);
    }

    void open()
    {
        QTest::mouseClick(&this->template get<QToolButton>("cmdAccount"), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    /// The page that was opened last.
    [[nodiscard]] frmAccount *page() const
    {
        frmAccount *last = nullptr;
        for (frmAccount *page : this->window->template findChildren<frmAccount *>()) {
            if (page->isVisible())
                last = page;
        }
        return last;
    }
    template <typename Widget>
    [[nodiscard]] Widget &in(const char *name) const
    {
        auto *const found = page()->template findChild<Widget *>(QLatin1String(name));
        if (!found)
            qFatal("the page has no %s of that kind", name);
        return *found;
    }
    void press(const char *button) const
    {
        QTest::mouseClick(&in<QPushButton>(button), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] ServerAccount account() const { return this->side->accounts.account(Host); }
    [[nodiscard]] FakeProbe &probe() const { return *this->side->probes.constLast(); }
    [[nodiscard]] ServerReport report() const
    {
        ServerReport report = probe().goodReport();
        report.greeting = QStringLiteral("220 smtp.example.org");
        return report;
    }
    [[nodiscard]] ServerReport reportOfRefusedCertificate() const
    {
        ServerReport report = this->report();
        report.reached = ServerStep::Connected;
        report.failure = QStringLiteral("the certificate does not verify");
        ServerCertificate certificate;
        certificate.standing = ServerCertificate::Standing::Refused;
        certificate.owner = Host;
        certificate.problem = QStringLiteral("it is self-signed");
        certificate.fingerprint = Fingerprint;
        report.certificate = certificate;
        return report;
    }
    [[nodiscard]] QStringList reportLines() const
    {
        QStringList texts;
        for (const ShownLine &line : in<LineList>("lstReport").lines())
            texts.append(line.text);
        return texts;
    }
};

using AccountRig = AccountRigOf<WindowRig>;
