#pragma once

#include "core/CommandRunner.h"
#include "core/FileManager.h"
#include "core/ItemCatalogue.h"
#include "core/Log.h"
#include "core/TaskQueues.h"
#include "platform/mail/Mailer.h"
#include "platform/windows/AlertPresenter.h"
#include "screens/TaskGate.h"

namespace tarnwick {

// What screens work with. All of it outlives them.
struct ScreenServices {
    const ItemCatalogue& catalogue;
    CommandRunner& runner;
    FileManager& files;
    TaskQueues& queues;
    TaskGate& gate;
    AlertPresenter& alerts;
    Mailer& mailer;
    Log& log;
};

}  // namespace tarnwick
