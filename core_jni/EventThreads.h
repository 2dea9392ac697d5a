// How library threads meet the virtual machine for events: attached and detached per event (the
// default), or, with -Dorvex.events.threads=attached, attached once as daemons and detached when
// the library ends them.
#pragma once

#include <jni.h>

#include "SDKCallback.h"

// Reads orvex.events.threads from the virtual machine's system properties; called at load.
void ReadEventThreadMode(JNIEnv* env);

// True in the attached mode.
bool KeepThreadsAttached();

// This thread's environment in the attached mode, attaching it as a daemon at its first event;
// null when the virtual machine refuses it.
JNIEnv* KeptAttachedEnv(JavaVM* vm);

// "invoke" of the listener's class `cls` on a thread kept attached, reused while the class is
// provably the same one.
jmethodID KeptAttachedInvoke(JNIEnv* env, jclass cls, const ListenerKind& kind);

// Hands an exception the listener threw to the thread's uncaught-exception handler, leaving
// nothing pending for the next event.
void HandOverToUncaughtHandler(JNIEnv* env);
