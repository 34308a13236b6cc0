#include "zcore/ZUndoCommand.h"

#include <utility>

ZUndoCommand::ZUndoCommand(ZCommandId id, QString text) : id_(id), text_(std::move(text)) {}

ZUndoCommand::~ZUndoCommand() = default;

QString ZUndoCommand::text() const { return text_; }

bool ZUndoCommand::mergeWith(ZUndoCommand const*) { return false; }

bool ZUndoCommand::hasIdRecursive(ZCommandId id) const { return id_ == id; }
