#include "tests/soak/Storage.h"

#include <csignal>
#include <cstring>
#include <sqlite3.h>
#include <unistd.h>

namespace varnik::soak {
namespace {

sqlite3_vfs* Machine = nullptr; // the layer that does the work
Storage* Shared = nullptr;

struct File {
    sqlite3_file base;
    Operation::Place place;
    sqlite3_io_methods methods;
    sqlite3_file* inner() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

File& Of(sqlite3_file* file) { return *reinterpret_cast<File*>(file); }
const sqlite3_io_methods& Inner(sqlite3_file* file) { return *Of(file).inner()->pMethods; }

int CodeOf(Operation::Kind kind) {
    switch (Shared->Armed()) {
    case Fault::Full:
        return SQLITE_FULL;
    case Fault::ReadOnly:
        return SQLITE_READONLY;
    case Fault::Busy:
        return SQLITE_BUSY;
    default:
        break;
    }
    switch (kind) {
    case Operation::Write:
        return SQLITE_IOERR_WRITE;
    case Operation::Sync:
        return SQLITE_IOERR_FSYNC;
    case Operation::Cut:
        return SQLITE_IOERR_TRUNCATE;
    default:
        return SQLITE_IOERR_DELETE;
    }
}

bool Strikes(sqlite3_file* file, Operation::Kind kind) { return Shared->Strikes({kind, Of(file).place}); }

int Close(sqlite3_file* file) { return Inner(file).xClose(Of(file).inner()); }
int Read(sqlite3_file* file, void* to, int size, sqlite3_int64 at) {
    return Inner(file).xRead(Of(file).inner(), to, size, at);
}
int Write(sqlite3_file* file, const void* from, int size, sqlite3_int64 at) {
    const auto& inner = Inner(file);
    if (!Strikes(file, Operation::Write)) return inner.xWrite(Of(file).inner(), from, size, at);
    // What a full or failing disk took before it refused stays; the engine must know its way around it.
    inner.xWrite(Of(file).inner(), from, size / 2, at);
    if (Shared->Armed() == Fault::Kill) raise(SIGKILL);
    return CodeOf(Operation::Write);
}
int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (!Strikes(file, Operation::Cut)) return Inner(file).xTruncate(Of(file).inner(), size);
    if (Shared->Armed() == Fault::Kill) raise(SIGKILL);
    return CodeOf(Operation::Cut);
}
int Sync(sqlite3_file* file, int flags) {
    if (!Strikes(file, Operation::Sync)) return Inner(file).xSync(Of(file).inner(), flags);
    if (Shared->Armed() == Fault::Kill) raise(SIGKILL);
    return CodeOf(Operation::Sync);
}
int Size(sqlite3_file* file, sqlite3_int64* size) { return Inner(file).xFileSize(Of(file).inner(), size); }
int Lock(sqlite3_file* file, int level) {
    if (level == SQLITE_LOCK_RESERVED && Strikes(file, Operation::Lock)) return CodeOf(Operation::Lock);
    return Inner(file).xLock(Of(file).inner(), level);
}
int Unlock(sqlite3_file* file, int level) { return Inner(file).xUnlock(Of(file).inner(), level); }
int Reserved(sqlite3_file* file, int* held) { return Inner(file).xCheckReservedLock(Of(file).inner(), held); }
int Control(sqlite3_file* file, int what, void* argument) {
    return Inner(file).xFileControl(Of(file).inner(), what, argument);
}
int SectorSize(sqlite3_file* file) { return Inner(file).xSectorSize(Of(file).inner()); }
int Traits(sqlite3_file* file) { return Inner(file).xDeviceCharacteristics(Of(file).inner()); }
int Map(sqlite3_file* file, int region, int size, int extend, void volatile** memory) {
    return Inner(file).xShmMap(Of(file).inner(), region, size, extend, memory);
}
int LockShared(sqlite3_file* file, int from, int count, int flags) {
    constexpr int Writer = 0, Taken = SQLITE_SHM_LOCK | SQLITE_SHM_EXCLUSIVE;
    if (from == Writer && flags == Taken && Strikes(file, Operation::Lock)) return CodeOf(Operation::Lock);
    return Inner(file).xShmLock(Of(file).inner(), from, count, flags);
}
void Barrier(sqlite3_file* file) { Inner(file).xShmBarrier(Of(file).inner()); }
int Unmap(sqlite3_file* file, int remove) { return Inner(file).xShmUnmap(Of(file).inner(), remove); }

constexpr sqlite3_io_methods Methods = {2,          Close,   Read,     Write,   Truncate,   Sync,   Size,
                                        Lock,       Unlock,  Reserved, Control, SectorSize, Traits, Map,
                                        LockShared, Barrier, Unmap,    nullptr, nullptr};

Operation::Place PlaceOf(const char* name) {
    const std::string_view path = name == nullptr ? "" : name;
    if (path.ends_with("-wal")) return Operation::Log;
    return path.ends_with("-journal") ? Operation::Journal : Operation::Database;
}

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* given) {
    File& own = Of(file);
    std::memset(file, 0, static_cast<std::size_t>(Machine->szOsFile) + sizeof(File));
    const int code = Machine->xOpen(Machine, name, own.inner(), flags, given);
    if (own.inner()->pMethods == nullptr) return code;
    own.place = PlaceOf(name);
    own.methods = Methods;
    if (!Shared->sharedMemory || own.inner()->pMethods->iVersion < 2) own.methods.iVersion = 1;
    own.base.pMethods = &own.methods;
    return code;
}

int Delete(sqlite3_vfs*, const char* name, int sync) {
    if (Shared->Strikes({Operation::Remove, PlaceOf(name)})) {
        if (Shared->Armed() == Fault::Kill) raise(SIGKILL);
        return CodeOf(Operation::Remove);
    }
    return Machine->xDelete(Machine, name, sync);
}
int Access(sqlite3_vfs*, const char* name, int flags, int* result) {
    return Machine->xAccess(Machine, name, flags, result);
}
int FullPath(sqlite3_vfs*, const char* name, int size, char* full) {
    return Machine->xFullPathname(Machine, name, size, full);
}

// Who waits for a lock that is not going to be free waits no time at all.
int Sleep(sqlite3_vfs*, int microseconds) {
    return Shared->Armed() == Fault::Busy ? microseconds : Machine->xSleep(Machine, microseconds);
}

} // namespace

Storage& Storage::Install() {
    if (Shared != nullptr) return *Shared;
    static Storage storage;
    Shared = &storage;
    sqlite3_initialize();
    Machine = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs layer = *Machine; // time, chance and libraries stay the machine's
    layer.zName = "counted";
    layer.szOsFile = static_cast<int>(sizeof(File)) + Machine->szOsFile;
    layer.pNext = nullptr;
    layer.xOpen = Open;
    layer.xDelete = Delete;
    layer.xAccess = Access;
    layer.xFullPathname = FullPath;
    layer.xSleep = Sleep;
    sqlite3_vfs_register(&layer, 1);
    return storage;
}

void Storage::Count(Fault fault) {
    fault_ = fault;
    counted_ = 0;
    from_ = 0;
    struck_ = false;
}

void Storage::Arm(Fault fault, long operation) {
    Count(fault);
    from_ = operation;
}

void Storage::Lift() {
    fault_ = Fault::None;
    from_ = 0;
}

bool Storage::Strikes(const Operation& operation) {
    const bool locks = operation.kind == Operation::Lock;
    switch (fault_) {
    case Fault::None:
        return false;
    case Fault::Full:
        if (operation.kind != Operation::Write) return false;
        break;
    case Fault::Input:
    case Fault::Kill:
        if (locks) return false;
        break;
    case Fault::ReadOnly:
    case Fault::Busy:
        if (!locks) return false;
        break;
    }
    ++counted_;
    if (onCounted) onCounted(operation);
    if (from_ == 0 || counted_ < from_) return false;
    if (!struck_) at_ = operation;
    struck_ = true;
    return true;
}

} // namespace varnik::soak
