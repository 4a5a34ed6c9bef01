#pragma once

#include <QObject>

class TestTimeTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void durations_data();
    void durations();
    void countdowns_data();
    void countdowns();
    void theEstimateOfTheExample();
    void anEstimateThatOverflowsSixteenBitsIsNone_data();
    void anEstimateThatOverflowsSixteenBitsIsNone();
    void aPacketSizeOfZeroHasNoEstimate();
    void theLastPacketNeedsNoWait();
    void secondsAreWrittenAndReadWithOneSign_data();
    void secondsAreWrittenAndReadWithOneSign();
    void halvesAreRoundedToEven();
    void whatIsNoDurationIsNone();
};
