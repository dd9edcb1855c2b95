"""The eight pictures of the tutorial: a white frame with white words, an arrow, and the spot that has to be clicked.

Each is shown among the beams at a fixed moment of puzzle 1 and shows what it covers: pieces of beams, and of the frame of
the playfield where it overlaps that. All places are pixels of the picture; the spots are those that the game tests.
"""

from typing import NamedTuple

from beams import Pixels
from buttons import PILL_DEFS, pill
from lettering import text_path, text_width
from neon import WHITE, centred_text, document, stroke
from scenery import frame

YELLOW, RED, BLUE = 3, 2, 0
LEFT, RIGHT = 1, 2


class Step(NamedTuple):
    """What is on one picture."""
    place: tuple  # left, top on the playfield, width, height
    frame: tuple  # left, top, right, bottom of the white frame
    baseline: int  # of the first line
    pitch: int  # from line to line
    lines: tuple
    arrow: tuple = ()  # where it begins, where it points
    buttons: tuple = ()  # each: left, top, right, bottom of the glass, words, height of the lettering
    call: tuple = ()  # words on a beam's end: the end, words with their middles and baselines, height of the lettering
    beams: tuple = ()  # each: start, the y to which the puzzle lays it out, the y of its head by now, direction, colour


STEPS = (
    Step((325, 54, 209, 114), (4, 4, 205, 110), 24, 16,
         ("In puzzle mode the goal is", "to clear all beams before", "they reach the ground"),
         buttons=((15, 76, 67, 104, ("Skip", "Tutorial"), 7), (124, 81, 197, 104, ("OK",), 11))),
    Step((323, 74, 216, 148), (48, 4, 214, 62), 29, 16, ("Bend the red beam", "by clicking on the end"),
         arrow=((52, 62), (36, 92)), call=((20, 115), (("Click", 27, 104), ("Here!", 21, 129)), 7),
         beams=((174, 20, 180, 189, RIGHT, RED), (414, 180, 324, 333, LEFT, YELLOW))),
    Step((13, 177, 184, 89), (66, 2, 150, 87), 16, 13, ("The yellow", "beam is", "stopped", "by the red"),
         arrow=((150, 40), (180, 40)), buttons=((91, 61, 123, 83, ("OK",), 10),),
         beams=((14, 20, 180, 213, RIGHT, YELLOW), (254, 180, 340, 373, LEFT, RED),
                (14, 180, 204, 237, RIGHT, YELLOW))),
    Step((449, 64, 191, 165), (6, 84, 185, 150), 105, 16,
         ("Start the blue", "non-moving beam", "by clicking on the end"),
         arrow=((100, 84), (100, 46)), call=((97, 24), (("Click", 90, 15), ("Here!", 98, 38)), 7),
         beams=((614, 20, 88, 88, LEFT, BLUE),)),
    Step((20, 420, 197, 116), (12, 24, 191, 110), 46, 16, ("The beam is reflected", "by the wall"),
         arrow=((26, 24), (6, 6)), buttons=((148, 76, 179, 100, ("OK",), 10),)),
    Step((468, 173, 186, 149), (10, 16, 180, 144), 40, 16,
         ("When beams of the", "same color collide", "they are destroyed"),
         arrow=((26, 22), (7, 5)), buttons=((128, 106, 167, 128, ("OK",), 10),)),
    Step((13, 291, 213, 94), (4, 8, 148, 86), 27, 16,
         ("Make the red beam", "go faster by", "right-clicking", "on the end"),
         arrow=((148, 41), (176, 41)), call=((187, 41), (("Right", 181, 20), ("Click", 181, 30), ("Here!", 188, 57)), 6.5),
         beams=((254, 180, 340, 421, LEFT, RED), (414, 180, 324, 476, LEFT, YELLOW),
                (14, 180, 204, 296, RIGHT, YELLOW), (343, 189, 189, 332, LEFT, RED))),
    Step((84, 484, 200, 109), (26, 4, 195, 100), 24, 16,
         ("If the yellow beam", "reaches the ground", "the game is over!"),
         arrow=((26, 37), (3, 37)), buttons=((150, 76, 185, 96, ("OK",), 10),),
         beams=((414, 180, 324, 521, LEFT, YELLOW),)),
)


def picture(index):
    step = STEPS[index]
    left, top, width, height = step.place
    body = f'<g transform="translate({-left} {-top})">\n{frame()}</g>\n'
    pixels = Pixels(*step.place)
    for beam in step.beams:
        pixels.beam(*beam)
    body += pixels.svg() + framed_text(step.frame, step.baseline, step.pitch, step.lines)
    if step.arrow:
        body += arrow(*step.arrow)
    for button in step.buttons:
        body += small_button(*button)
    if step.call:
        body += call(*step.call)
    return document(width, height, body, PILL_DEFS[False])


def framed_text(frame_box, baseline, pitch, lines):
    left, top, right, bottom = frame_box
    body = (f'<rect x="{left + 0.5}" y="{top + 0.5}" width="{right - left - 1}" height="{bottom - top - 1}" rx="5" '
            f'fill="#000000" stroke="{WHITE}" stroke-width="1"/>\n')
    for row, line in enumerate(lines):
        x = (left + right - text_width(line, 1.0)) / 2
        body += stroke(text_path(line, x, baseline + row * pitch + 0.5, 1.0, snap=True), WHITE, 1.25)
    return body


def arrow(tail, tip):
    length = ((tip[0] - tail[0]) ** 2 + (tip[1] - tail[1]) ** 2) ** 0.5
    along = ((tip[0] - tail[0]) / length, (tip[1] - tail[1]) / length)
    wings = [(tip[0] - 8 * along[0] + side * along[1], tip[1] - 8 * along[1] - side * along[0]) for side in (5, -5)]
    path = (f"M{tail[0]} {tail[1]} L{tip[0]} {tip[1]} M{wings[0][0]:.2f} {wings[0][1]:.2f} L{tip[0]} {tip[1]} "
            f"L{wings[1][0]:.2f} {wings[1][1]:.2f}")
    return stroke(path, "#000000", 5) + stroke(path, WHITE, 2)


def small_button(left, top, right, bottom, words, cap):
    body = pill(left + 0.8, top + 0.8, right - left - 1.6, bottom - top - 1.6, False)
    pitch = cap + 3
    baseline = (top + bottom + cap - pitch * (len(words) - 1)) / 2
    for row, word in enumerate(words):
        body += stroke(centred_text(word, (left + right) / 2, baseline + row * pitch, cap / 10), WHITE, 1.3)
    return body


def call(end, words, cap):
    """Words beside a beam's end, and a ring around the end itself."""
    ring = f"M{end[0] - 4.5} {end[1] + 0.5} a5 5 0 0 1 10 0 a5 5 0 0 1 -10 0"
    body = f'<path d="{ring}" fill="none" stroke="{WHITE}" stroke-width="1.2"/>\n'
    paths = [centred_text(word, middle, baseline, cap / 10, -0.6) for word, middle, baseline in words]
    return body + "".join(stroke(path, WHITE, 1.25) for path in paths)
