# SPDX-License-Identifier: GPL-3.0-or-later
"""What a result table shows, read back as figures by categories."""
import lists
import questions

MARKERS = {"0. __tot__": "TOT", "0. __mv__": "MV", "0. __na__": "NA",
           "Total": "TOT", "MV": "MV", "NA": "NA"}
DECIMALS = 2
SIX_DECIMALS = 5.1e-7


class Unexpected(Exception):
    pass


def require(condition, text):
    if not condition:
        raise Unexpected(text)


def category(text):
    """The code of "1. Male", or the marker's name."""
    return MARKERS.get(text) or text.split(". ")[0]


def number(text):
    return float(text) if text else None


def figures_of(question, table):
    """Figures by categories as the question expects them, and how exact they are."""
    if isinstance(question, lists.AreaList):
        return {(i,): tuple(row) for i, row in enumerate(table["cells"])}, 0
    width = len(question.categories())
    kind = question.kind if isinstance(question, questions.Measure) else "FREQUENCY"
    if kind not in ("FREQUENCY", "AVERAGE"):
        return generic(table, width), 0
    if width == 0:
        ((_, figure),) = table["cells"]
        return {(): (number(figure),)}, 0
    if width == 1:
        return one_variable(table, kind), SIX_DECIMALS
    return crossed(table, width), 0


def add(figures, key, values):
    require(key not in figures, f"{key} stands there twice")
    figures[key] = values


def one_variable(table, kind):
    figures = {}
    for name, figure, *_ in table["cells"]:
        add(figures, (category(name),), (number(figure),))
    if kind == "FREQUENCY":
        check_percents(table["cells"], figures)
    return figures


def check_percents(rows, figures):
    total = figures[("TOT",)][0] or 0
    running = 0
    for name, figure, percent, cumulated in rows:
        if name in MARKERS:
            require((percent, cumulated) == ("100" if name == "0. __tot__" else "", ""),
                    f"{name} has the percents {percent} and {cumulated}")
            continue
        wanted = float(figure) * 100 / total if total > 0 else 0
        running += wanted
        near(percent, wanted, f"percent of {name}")
        near(cumulated, running, f"running percent of {name}")


def near(text, wanted, what):
    require(abs(float(text) - wanted) < 1e-5, f"{what} is {text}, not {wanted}")


def crossed(table, width):
    figures = {}
    columns = [category(header) for header in table["headers"][width - 1:]]
    require(len(set(columns)) == len(columns), f"columns are there twice: {columns}")
    for row in table["cells"]:
        rows = tuple(category(name) for name in row[:width - 1])
        for column, figure in zip(columns, row[width - 1:]):
            if figure:
                add(figures, (*rows, column), (float(figure),))
    check_report(table, width - 2)
    return figures


def check_report(table, outer):
    """The report says the same, with the outer variables in rows of their own."""
    last = [""] * outer
    rows = []
    for row in table["report"]:
        names = [i for i in range(outer) if row[i]]
        if names:
            require(not any(row[outer:]) and len(names) == 1, f"an odd row of the report: {row}")
            last[names[0]] = row[names[0]]
        else:
            rows.append(last + row[outer:])
    require(rows == table["cells"], "the report's rows are others than the grid's")


def generic(table, width):
    figures = {}
    for row in table["cells"]:
        add(figures, tuple(category(name) for name in row[:width]),
            tuple(number(figure) for figure in row[width:]))
    return figures


def check_display(table):
    """Each figure as it is shown is the figure, rounded; each text is the text."""
    for cells, shown in zip(table["cells"], table["shown"], strict=True):
        for raw, display, is_text in zip(cells, shown, table["texts"], strict=True):
            if is_text:
                wanted = {"TOT": "Total"}.get(MARKERS.get(raw), MARKERS.get(raw, raw.strip()))
                require(display == wanted, f"{raw} is shown as {display}")
            else:
                check_figure(raw, display)


def check_figure(raw, display):
    if not raw:
        require(display == "", f"a blank is shown as {display}")
        return
    whole, _, decimals = display.replace(" ", "").partition(".")
    value = float(raw)
    require(len(decimals) in (0, DECIMALS), f"{raw} is shown as {display}")
    shown = float(whole + "." + (decimals or "0"))
    apart = 0.5 * 10 ** -DECIMALS if decimals else 1e-9
    require(abs(shown - value) <= apart * 1.000001 + abs(value) * 1e-15,
            f"{raw} is shown as {display}")
    groups = display.partition(".")[0].lstrip("-").split(" ")
    require(len(groups[0]) <= 3 and all(len(group) == 3 for group in groups[1:]),
            f"{raw} is grouped as {display}")
