// SPDX-License-Identifier: Apache-2.0
// The program that measures documents, which may be anybody's, and lays them out: it is started where it can do no
// harm, answers the questions of job/PagesWords.h, and ends when nobody is there to ask. It draws nothing, and is
// without the libraries for that: they would take longer to be loaded than a label to be laid out.
#include "drawing/Asker.h"
#include "drawing/Bounds.h"
#include "drawing/PdfLayout.h"

#include <algorithm>

#include <unistd.h>

namespace
{

using namespace tapeprint;
using drawing::listen;
using drawing::say;
using job::PagesAnswer;
using job::PagesQuestion;

/// Nobody listens any more.
[[noreturn]] void leave()
{
    _exit(0);
}

void sayOrLeave(const void *bytes, std::size_t length)
{
    if (!say(bytes, length)) {
        leave();
    }
}

void answer(PagesAnswer::Kind kind, std::size_t length = 0)
{
    const PagesAnswer word{kind, PagesAnswer::Other, 0, static_cast<std::uint32_t>(length)};
    sayOrLeave(&word, sizeof word);
}

/// The document that is made, said piece by piece.
class SaidOutput : public drawing::Output
{
public:
    void tellProgress() override { answer(PagesAnswer::Working); }
    void take(const unsigned char *bytes, std::size_t length) override
    {
        while (length > 0) {
            const std::size_t piece = std::min<std::size_t>(length, job::mostPieceBytes);
            answer(PagesAnswer::Piece, piece);
            sayOrLeave(bytes, piece);
            bytes += piece;
            length -= piece;
        }
    }
};

template <typename Word>
std::vector<Word> listenToSome(std::size_t count)
{
    std::vector<Word> words(count);
    if (!listen(words.data(), words.size() * sizeof(Word))) {
        leave();
    }
    return words;
}

/// What a question is about. \return false: nobody asks any more.
struct Asked {
    PagesQuestion question;
    std::vector<drawing::Bytes> documents;
    std::vector<std::uint32_t> labels;
    std::vector<job::PagesPlaced> pages;

    bool listenToAll()
    {
        if (!listen(&question)) {
            return false;
        }
        for (std::uint32_t i = 0; i < question.documents; ++i) {
            job::PagesDocument word = 0;
            int handle = -1;
            if (!listen(&word, &handle)) {
                return false;
            }
            documents.push_back(drawing::take(handle));
        }
        labels = listenToSome<std::uint32_t>(question.labels);
        pages = listenToSome<job::PagesPlaced>(question.pages);
        return true;
    }

    drawing::Labels plan() const
    {
        drawing::Labels plan{question.width, question.height, question.downPt, {}};
        auto next = pages.begin();
        for (const std::uint32_t count : labels) {
            const auto end = next + std::min<std::ptrdiff_t>(count, pages.end() - next);
            plan.pages.emplace_back(next, end);
            next = end;
        }
        return plan;
    }
};

void tell(const drawing::Failure &failure)
{
    const std::size_t length = std::min<std::size_t>(failure.reason.size(), job::mostReasonBytes);
    const PagesAnswer word{PagesAnswer::Failed, failure.fault, failure.document, static_cast<std::uint32_t>(length)};
    sayOrLeave(&word, sizeof word);
    sayOrLeave(failure.reason.data(), length);
}

void measure(const Asked &asked)
{
    std::vector<job::DrawerPage> pages;
    if (const std::optional<drawing::Failure> failure = drawing::measure(asked.documents.front(), &pages)) {
        tell(*failure);
        return;
    }
    answer(PagesAnswer::Measured, pages.size());
    sayOrLeave(pages.data(), pages.size() * sizeof(job::DrawerPage));
}

void make(const Asked &asked)
{
    SaidOutput output;
    const std::optional<drawing::Failure> failure = asked.question.kind == PagesQuestion::LayOut
                                                        ? drawing::layOut(asked.plan(), asked.documents, output)
                                                        : drawing::choose(asked.pages, asked.documents, output);
    if (failure) {
        tell(*failure);
    } else {
        answer(PagesAnswer::Whole);
    }
}

} // namespace

int main()
{
    drawing::takeBounds();
    if (!say(job::pagesGreeting)) {
        return 0;
    }
    for (Asked asked; asked.listenToAll(); asked = {}) {
        if (asked.question.kind != PagesQuestion::Measure) {
            make(asked);
        } else if (!asked.documents.empty()) {
            measure(asked);
        }
        std::for_each(asked.documents.begin(), asked.documents.end(), drawing::drop);
    }
    return 0;
}
