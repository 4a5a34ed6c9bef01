"""The table that the bench prints."""


class Table:
    """Rows of a measured thing, its figure, the bound it must meet and the one it should."""

    def __init__(self):
        self.rows = [("", "Sorvanta", "others, and the ratio to them", "must", "should", "")]
        self.missed = 0

    def add(self, what, figure, unit, others=None, most=None, least=None, should=None):
        """One row; a bound is a figure, or the name of one of the others."""
        shown = [
            f"{name} {other:,.0f} ({figure / other:.2f})" for name, other in (others or {}).items()
        ]
        sign, must = ("at least", least) if most is None else ("at most", most)

        def is_met(bound):
            value = others[bound] if isinstance(bound, str) else bound
            return figure <= value if sign == "at most" else figure >= value

        def text_of(bound):
            return bound if isinstance(bound, str) else "" if bound is None else f"{bound:,.5g}"

        verdict = ""
        if must is not None:
            self.missed += not is_met(must)
            verdict = "MISSED" if not is_met(must) else "met"
            if should is not None and is_met(should):
                verdict += ", and what it should be"
        digits = 0 if figure >= 20 else 2 if figure >= 0.1 else 3
        bound = f"{sign} {text_of(must)}" if must is not None else ""
        figure_text = f"{figure:,.{digits}f} {unit}"
        self.rows.append(
            (what, figure_text, ", ".join(shown), bound, text_of(should), verdict)
        )

    def show(self):
        """Prints the table."""
        columns = range(len(self.rows[0]))
        widths = [max(len(row[i]) for row in self.rows) for i in columns]
        for number, row in enumerate(self.rows):
            print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())
            if number == 0:
                print("-" * (sum(widths) + 2 * len(columns) - 2))
