#pragma once

#include "preflight/Preflight.h"
#include "preflight/TestMessage.h"
#include "preflight/TrialMessage.h"
#include "support/FakeComposer.h"
#include "support/FakeProbe.h"
#include "support/WorkspaceRig.h"

/// A workspace, and beside it a client of their own for what is made outside runs, and a probe.
struct PreflightRig : WorkspaceRig
{
    FakeSmtp trialClient;
    FakeComposer composer{trialClient};
    FakeProbe probe;
    TrialMessage trial{{w.form, w.recipients, w.reader, w.filler, trialClient, composer}};
    TestMessage test{trial};
    Preflight preflight{{w.form, w.recipients, w.attachments, w.reader, trial, probe}};
};
