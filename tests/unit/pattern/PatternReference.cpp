#include "tests/unit/pattern/PatternReference.h"

#include <functional>
#include <utility>

using Node = ReferenceNode;
using NodePointer = std::unique_ptr<Node>;

struct ReferenceNode {
    enum EKind { Empty, Literal, Any, Set, End, Sequence, Either, Capture, Reference, Not, Repeat };
    EKind kind = Empty;
    wchar_t character = 0;
    std::vector<std::pair<wchar_t, wchar_t>> ranges;
    bool negated = false;
    bool lazy = false;
    std::size_t group = 0;
    std::size_t fewest = 0;
    std::size_t most = 0;
    std::vector<NodePointer> children;
};

namespace {

constexpr std::size_t kWithoutBound = static_cast<std::size_t>(-1);
constexpr std::size_t kMostWork = 20000;

struct ParseError {
    unsigned code;
};
struct TooMuchWork {};

std::wstring Lowered(std::wstring text) {
    const std::wstring capitals = L"ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ";
    const std::wstring smalls = L"abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ";
    for (wchar_t& character : text) {
        const std::size_t found = capitals.find(character);
        if (found != std::wstring::npos) {
            character = smalls[found];
        }
    }
    return text;
}

NodePointer Make(Node::EKind kind) {
    auto node = std::make_unique<Node>();
    node->kind = kind;
    return node;
}

bool CanBeEmpty(const Node& node) {
    switch (node.kind) {
        case Node::Literal:
        case Node::Any:
        case Node::Set:
            return false;
        case Node::Sequence:
            for (const NodePointer& child : node.children) {
                if (!CanBeEmpty(*child)) {
                    return false;
                }
            }
            return true;
        case Node::Either:
            return CanBeEmpty(*node.children[0]) || CanBeEmpty(*node.children[1]);
        case Node::Capture:
            return CanBeEmpty(*node.children[0]);
        case Node::Repeat:
            return node.fewest == 0 || CanBeEmpty(*node.children[0]);
        default:
            return true;
    }
}

class CParser {
public:
    CParser(std::wstring text, std::size_t& groups) : m_text(std::move(text)), m_groups(groups) {}

    bool TakeAnchor() { return Take(L'^'); }

    NodePointer ParseSequence() {
        NodePointer sequence = Make(Node::Sequence);
        while (!AtStop()) {
            sequence->children.push_back(ParseEither());
        }
        return sequence;
    }

    NodePointer ParseElement() {
        NodePointer atom = ParseAtom();
        std::size_t fewest = 0;
        std::size_t most = kWithoutBound;
        if (Take(L'?')) {
            most = 1;
        } else if (Take(L'+')) {
            fewest = 1;
        } else if (!Take(L'*')) {
            return atom;
        }
        NodePointer repeat = Make(Node::Repeat);
        repeat->fewest = fewest;
        repeat->most = most;
        repeat->lazy = Take(L'?');
        if (most == kWithoutBound && CanBeEmpty(*atom)) {
            throw ParseError{9};
        }
        repeat->children.push_back(std::move(atom));
        return repeat;
    }

private:
    bool AtEnd() const { return m_at == m_text.size(); }
    bool At(wchar_t character) const { return !AtEnd() && m_text[m_at] == character; }
    bool AtStop() const { return AtEnd() || At(L'}') || At(L']') || At(L')'); }
    bool Take(wchar_t character) {
        const bool there = At(character);
        m_at += there ? 1 : 0;
        return there;
    }

    NodePointer ParseEither() {
        NodePointer left = ParseElement();
        if (!Take(L'|')) {
            return left;
        }
        NodePointer either = Make(Node::Either);
        either->children.push_back(std::move(left));
        either->children.push_back(AtStop() ? Make(Node::Empty) : ParseEither());
        return either;
    }

    NodePointer ParseAtom() {
        if (AtStop()) {
            return Make(Node::Empty);
        }
        const wchar_t character = m_text[m_at++];
        if (character == L'!') {
            NodePointer look = Make(Node::Not);
            look->children.push_back(ParseAtom());
            return look;
        }
        if (character == L'{') {
            NodePointer capture = Make(Node::Capture);
            capture->group = m_groups++;
            capture->children.push_back(ParseSequence());
            if (!Take(L'}')) {
                throw ParseError{2};
            }
            return capture;
        }
        if (character == L'(') {
            NodePointer inside = ParseSequence();
            if (!Take(L')')) {
                throw ParseError{3};
            }
            return inside;
        }
        if (character == L'.') {
            return Make(Node::Any);
        }
        if (character == L'$' && AtEnd()) {
            return Make(Node::End);
        }
        if (character == L'[') {
            return ParseSet();
        }
        if (character == L'\\' && !AtEnd()) {
            return ParseEscape();
        }
        return Literal(character);
    }

    static NodePointer Literal(wchar_t character) {
        NodePointer literal = Make(Node::Literal);
        literal->character = character;
        return literal;
    }

    NodePointer ParseEscape() {
        if (m_text[m_at] >= L'0' && m_text[m_at] <= L'9') {
            std::wstring digits;
            while (!AtEnd() && m_text[m_at] >= L'0' && m_text[m_at] <= L'9') {
                digits += m_text[m_at++];
            }
            const double number = std::stod(digits);
            if (number >= static_cast<double>(m_groups)) {
                throw ParseError{7};
            }
            NodePointer reference = Make(Node::Reference);
            reference->group = static_cast<std::size_t>(number);
            return reference;
        }
        const wchar_t character = m_text[m_at++];
        static const std::pair<wchar_t, const wchar_t*> expansions[] = {{L'a', L"([a-zA-Z0-9])"},
                                                                        {L'b', L"([ \t])"},
                                                                        {L'c', L"([a-zA-Z])"},
                                                                        {L'd', L"([0-9])"},
                                                                        {L'h', L"([0-9a-fA-F])"},
                                                                        {L'n', L"(\r|(\r?\n))"},
                                                                        {L'q', L"(\"[^\"]*\")|('[^']*')"},
                                                                        {L'w', L"([a-zA-Z]+)"},
                                                                        {L'z', L"([0-9]+)"}};
        for (const auto& [letter, expansion] : expansions) {
            if (letter == character) {
                std::size_t none = 0;
                return CParser(expansion, none).ParseElement();
            }
        }
        return Literal(character);
    }

    NodePointer ParseSet() {
        NodePointer set = Make(Node::Set);
        set->negated = Take(L'^');
        if (At(L']')) {
            throw ParseError{6};
        }
        while (!Take(L']')) {
            if (AtEnd()) {
                throw ParseError{4};
            }
            wchar_t low = m_text[m_at++];
            if (low == L'\\') {
                if (AtEnd()) {
                    throw ParseError{4};
                }
                low = m_text[m_at++];
                low = low == L't' ? L'\t' : low;
            }
            wchar_t high = low;
            if (Take(L'-')) {
                if (AtEnd() || At(L']')) {
                    throw ParseError{4};
                }
                high = m_text[m_at++];
                if (high < low) {
                    throw ParseError{8};
                }
            }
            set->ranges.emplace_back(low, high);
        }
        return set;
    }

    std::wstring m_text;
    std::size_t m_at = 0;
    std::size_t& m_groups;
};

class CRun {
public:
    using Next = std::function<bool(std::size_t)>;
    using Capture = std::optional<ReferenceSpan>;

    CRun(const std::wstring& text, std::size_t groups) : captures(groups), m_text(text) {}

    bool Match(const Node& node, std::size_t at, const Next& next) {
        if (++m_work > kMostWork) {
            throw TooMuchWork();
        }
        switch (node.kind) {
            case Node::Empty:
                return next(at);
            case Node::Literal:
                return at < m_text.size() && m_text[at] == node.character && next(at + 1);
            case Node::Any:
                return at < m_text.size() && next(at + 1);
            case Node::Set:
                return at < m_text.size() && IsIn(node, m_text[at]) && next(at + 1);
            case Node::End:
                return at == m_text.size() && next(at);
            case Node::Sequence:
                return MatchFrom(node, 0, at, next);
            case Node::Either:
                return Match(*node.children[0], at, next) || Match(*node.children[1], at, next);
            case Node::Capture:
                return MatchCapture(node, at, next);
            case Node::Reference:
                return MatchReference(node, at, next);
            case Node::Not: {
                const std::vector<Capture> before = captures;
                const bool hit = Match(*node.children[0], at, [](std::size_t) { return true; });
                captures = before;
                return !hit && next(at);
            }
            case Node::Repeat:
                return MatchRepeat(node, 0, at, next);
        }
        return false;
    }

    std::vector<Capture> captures;

private:
    static bool IsIn(const Node& set, wchar_t character) {
        for (const auto& [low, high] : set.ranges) {
            if (low <= character && character <= high) {
                return !set.negated;
            }
        }
        return set.negated;
    }

    bool MatchFrom(const Node& sequence, std::size_t child, std::size_t at, const Next& next) {
        if (child == sequence.children.size()) {
            return next(at);
        }
        return Match(*sequence.children[child], at,
                     [&, child](std::size_t after) { return MatchFrom(sequence, child + 1, after, next); });
    }

    bool MatchRepeat(const Node& repeat, std::size_t done, std::size_t at, const Next& next) {
        const auto once_more = [&] {
            return done < repeat.most && Match(*repeat.children[0], at, [&, done](std::size_t after) {
                       return MatchRepeat(repeat, done + 1, after, next);
                   });
        };
        const auto enough = [&] { return done >= repeat.fewest && next(at); };
        return repeat.lazy ? enough() || once_more() : once_more() || enough();
    }

    bool MatchCapture(const Node& node, std::size_t at, const Next& next) {
        const auto close = [&](std::size_t after) {
            const Capture before = captures[node.group];
            captures[node.group] = ReferenceSpan{at, after};
            if (next(after)) {
                return true;
            }
            captures[node.group] = before;
            return false;
        };
        return Match(*node.children[0], at, close);
    }

    bool MatchReference(const Node& node, std::size_t at, const Next& next) {
        const Capture& capture = captures[node.group];
        const std::wstring captured =
            capture ? m_text.substr(capture->begin, capture->end - capture->begin) : std::wstring();
        return m_text.compare(at, captured.size(), captured) == 0 && next(at + captured.size());
    }

    const std::wstring& m_text;
    std::size_t m_work = 0;
};

}  // namespace

CPatternReference::CPatternReference(const std::wstring& pattern, bool caseSensitive)
    : m_caseSensitive(caseSensitive) {
    try {
        CParser parser(caseSensitive ? pattern : Lowered(pattern), m_groupCount);
        m_anchored = parser.TakeAnchor();
        m_root = parser.ParseSequence();
    } catch (const ParseError& error) {
        m_error = error.code;
    }
}

CPatternReference::~CPatternReference() = default;

ReferenceResult CPatternReference::Match(const std::wstring& input) const {
    const std::wstring text = m_caseSensitive ? input : Lowered(input);
    const std::size_t starts = m_anchored || text.empty() ? 1 : text.size();
    ReferenceResult result;
    try {
        for (std::size_t start = 0; start < starts && !result.match; ++start) {
            CRun run(text, m_groupCount);
            const auto end = [&](std::size_t at) {
                result.match = ReferenceSpan{start, at};
                return true;
            };
            if (run.Match(*m_root, start, end)) {
                result.groups = run.captures;
            }
        }
    } catch (const TooMuchWork&) {
        result.tooMuchWork = true;
    }
    return result;
}
