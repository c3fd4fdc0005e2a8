#include "ui/shell/form_factory.hpp"

#include "ui/forms/Form1.hpp"
#include "ui/forms/Perffrm.hpp"
#include "ui/forms/exact_figures.hpp"
#include "ui/forms/explain.hpp"
#include "ui/forms/history.hpp"
#include "ui/forms/model_view.hpp"
#include "ui/forms/perf_res.hpp"
#include "ui/forms/portdes.hpp"
#include "ui/forms/result_tables.hpp"
#include "ui/forms/select_graphs.hpp"
#include "ui/forms/study_form.hpp"
#include "ui/forms/viewwinfrm.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

struct form_maker {
    std::string_view form;
    mdi_form* (*make)(form_context);
};

template <typename form>
mdi_form* made(form_context context) {
    return new form(context);
}

constexpr std::array FORM_MAKERS = {
    form_maker{"Form1", made<Form1>},
    form_maker{"portdes", made<portdes>},
    form_maker{"viewwinfrm", made<viewwinfrm>},
    form_maker{"Perffrm", made<Perffrm>},
    form_maker{"select_graphs", made<select_graphs>},
    form_maker{"explain", made<explain>},
    form_maker{"port_explain", made<port_explain>},
    form_maker{"perf_res", made<perf_res>},
    form_maker{"result_tables", made<result_tables>},
    form_maker{"exact_figures", made<exact_figures>},
    form_maker{"model_view", made<model_view>},
    form_maker{"history", made<history>},
    form_maker{"study_form", made<study_form>},
};

}  // namespace

mdi_form* make_form(std::string_view form, form_context context) {
    const auto found = std::ranges::find(FORM_MAKERS, form, &form_maker::form);
    return found == FORM_MAKERS.end() ? nullptr : found->make(context);
}

}  // namespace kvt
