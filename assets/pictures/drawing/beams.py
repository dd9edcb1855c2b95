"""The beams as the game itself paints them, pixel by pixel, for pictures that are shown among them.

A tutorial picture covers pieces of beams and has to show the same pixels. A stroke covers the pixels whose centres lie
within half its width of its middle line; the result is given as runs of whole pixels, sharp at every scale.
"""

import math

CORE = ("#0000ff", "#008000", "#ff0000", "#c0c000")
UPPER = ("#00c0ff", "#00ff00", "#a0c0c0", "#ffffc0")
LOWER = ("#000080", "#000400", "#c00000", "#808000")


class Pixels:
    """What is painted in a section of the playfield, as colours by place."""

    def __init__(self, left, top, width, height):
        self.left, self.top, self.width, self.height = left, top, width, height
        self.colours = {}

    def line(self, x1, y1, x2, y2, colour, width):
        reach = width // 2
        for y in range(max(y1 - reach, self.top), min(y2 + reach + 1, self.top + self.height)):
            near = x1 + (min(max(y, y1), y2) - y1) * (1 if x2 > x1 else -1)
            for x in range(near - 2 * reach - 1, near + 2 * reach + 2):
                inside = self.left <= x < self.left + self.width
                if inside and distance(x, y, x1, y1, x2, y2) <= width / 2:
                    self.colours[x - self.left, y - self.top] = colour

    def piece(self, x1, y1, x2, y2, direction, colour):
        """One piece of a beam: the core, the edge that faces up, the edge that faces down."""
        side = 2 if direction == 2 else -2
        self.line(x1, y1, x2, y2, CORE[colour], 5)
        self.line(x1, y1 - 2, x2 + side, y2, UPPER[colour], 1)
        self.line(x1 - side, y1, x2, y2 + 2, LOWER[colour], 1)

    def beam(self, x, y, laid, head, direction, colour):
        """A beam from (x, y) that was laid out as far as `laid` and has grown step by step to `head`."""
        step = 1 if direction == 2 else -1
        self.piece(x, y, x + step * (laid - y), laid, direction, colour)
        for row in range(laid, head):
            self.piece(x + step * (row - y), row, x + step * (row + 1 - y), row + 1, direction, colour)

    def svg(self):
        runs = {}
        for (x, y), colour in sorted(self.colours.items(), key=lambda item: (item[0][1], item[0][0])):
            row = runs.setdefault(colour, [])
            if row and row[-1][1] == y and row[-1][0] + row[-1][2] == x:
                row[-1][2] += 1
            else:
                row.append([x, y, 1])
        return "".join(f'<path fill="{colour}" shape-rendering="crispEdges" d="' +
                       "".join(f"M{x} {y}h{length}v1h-{length}z" for x, y, length in row) + '"/>\n'
                       for colour, row in sorted(runs.items()))


def distance(x, y, x1, y1, x2, y2):
    length = (x2 - x1) ** 2 + (y2 - y1) ** 2
    part = ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length if length else 0.0
    part = min(max(part, 0.0), 1.0)
    return math.hypot(x - x1 - part * (x2 - x1), y - y1 - part * (y2 - y1))
