// held_design: a design that a script holds: its entries as they were typed, and what its last
// calculation found. What was typed decides alone: a calculation runs on a copy, so that none
// depends on those before it, and what it found can be read as long as somebody holds it.
#pragma once

#include "app/export/export_request.hpp"
#include "app/program.hpp"
#include "app/stages/batch_run.hpp"

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace kvt {

/// What a calculation found. It is never changed.
struct held_results {
    program records;
    batch_result run;
    std::vector<std::string> messages;  ///< of opening, typing and calculating, in this order
};

/// What was written, and what was left out for which reason.
struct script_files {
    std::vector<std::string> paths;
    std::vector<std::string> notes;
};

/// Several threads may call one design: they wait for each other. Every function that fails throws
/// script_failure and leaves the design as it was.
class held_design {
  public:
    /// A new project: 3 lobes, everything else empty or 0.
    static std::shared_ptr<held_design> make_new(const std::string& name, std::int16_t language);
    static std::shared_ptr<held_design> open(const std::string& path, std::int16_t language);
    /// The bytes of project_text, or of a project file, taken over as they are typed there.
    static std::shared_ptr<held_design> of_text(const std::string& bytes, std::int16_t language);
    /// A design of its own with the same entries; both hold the same results.
    std::shared_ptr<held_design> copy() const;

    /// The text of an entry, "0" or "1" of a check box or option button, the list text of unittype.
    std::string entry(const std::string& name) const;
    /// Types a text and leaves the entry. Throws when a text is refused or the handler says
    /// something; what it has put into the entry then stays there.
    void type(const std::string& name, const std::string& text);

    std::int16_t language() const;
    void choose_language(std::int16_t language);
    std::string name() const;
    std::string path() const;
    /// The project with every entry as it was typed, for of_text.
    std::string project_text() const;

    /// The program with the entries, on which nothing was calculated.
    program opened() const;

    /// Runs the stages. Throws when the design was refused or failed, with its messages; how far it
    /// came stands in finished() then.
    std::shared_ptr<const held_results> calculate(calc_stage last);
    /// The last calculation; null before the first, and after entries were typed.
    std::shared_ptr<const held_results> finished() const;
    std::vector<std::string> messages() const;

    /// Writes the project as Save does.
    void write_project_file(const std::string& path) const;
    /// Writes the report by its ending. Throws not_calculated, too.
    void write_report(const std::string& path, const std::string& date) const;
    /// Writes the files that are asked for. Throws not_calculated, and file_failure when one that
    /// was asked for could not be written, with the notes.
    script_files write_files(const export_request& request) const;
    /// Writes the workbook of the performance to a path.
    void write_workbook(const std::string& path) const;

  private:
    held_design() = default;

    struct held_state {
        program opened;                     ///< with the entries, never calculated
        std::vector<std::string> messages;  ///< of opening and typing
        std::shared_ptr<const held_results> finished;
    };

    std::shared_ptr<const held_results> finished_or_throw() const;

    mutable std::mutex mutex_;
    held_state state_;
};

/// Every entry that can be typed into, in the order of the forms.
std::vector<std::string> entry_names();

}  // namespace kvt
