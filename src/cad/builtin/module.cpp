// module: what a program calls that has loaded the built-in modeller.
#include "cad/builtin/builtin_host.hpp"

/// A new modeller without documents; the caller deletes it. The program finds it by this name.
extern "C" __attribute__((visibility("default"))) kvt::model_store* kvt_new_model_store() {
    return new kvt::builtin::builtin_host;
}
