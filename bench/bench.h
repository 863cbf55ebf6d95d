// Measuring our way of doing something beside another way, in the same run.
#pragma once

#include <functional>
#include <string>

#include "main_window.h"

namespace bench {

// The median time of several runs, in milliseconds.
double Median(int runs, const std::function<void()>& run);

// Runs the two alternately, so that both meet the same state of the machine, and prints their median times
// and the ratio beside its aim. `prepare` runs before each of them, untimed.
void Compare(const std::string& what, double aim, int runs, const std::function<void()>& ours,
             const std::function<void()>& theirs, const std::function<void()>& prepare = {});

// One line of the table.
void Print(const std::string& what, double ours, double theirs, double aim);

// An HTML page of about this many bytes.
std::string Page(std::size_t bytes);

// Streams the page into a bare control, passes that to `use`, and destroys it.
void BareControl(HWND parent, std::u16string_view page, const std::function<void(HWND)>& use = {});

// A path in the benchmark's own folder.
std::string Scratch(const std::string& name);
void WriteFile(const std::string& path, const std::string& bytes);

// The parts of the benchmark.
void Start();
void OpenAndSave(MainWindow& main);
void Typing(MainWindow& main);
void FindAndReplace(MainWindow& main);
void Chart(MainWindow& main);
void Ftp(MainWindow& main);

}  // namespace bench
