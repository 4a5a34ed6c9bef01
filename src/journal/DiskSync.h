#pragma once

#include "base/AppendedFile.h"

#include <QObject>

/// Does the jobs that bring records to the disk.
class DiskSync
{
public:
    using Done = std::function<void(const tl::expected<void, FileError> &)>;

    DiskSync() = default;
    DiskSync(const DiskSync &) = delete;
    DiskSync &operator=(const DiskSync &) = delete;
    virtual ~DiskSync() = default;

    /// Does the job soon, without keeping anybody waiting. Both calls come from the event loop:
    /// `begins` just before the job, which counts everything that was appended by then.
    virtual void begin(const AppendedFile::DiskJob &job, std::function<void()> begins,
                       Done done) = 0;
};

/// Lets a moment pass first, so that one job serves all records written meanwhile, and does it in
/// another thread.
class GroupedSync final : public QObject, public DiskSync
{
    Q_OBJECT

public:
    void begin(const AppendedFile::DiskJob &job, std::function<void()> begins, Done done) override;
};
