// A dialog of many small choices on a phone: enlarged until it can be read and touched, even if it has to be scrolled. If it is
// wider than the page, its right half comes below its left one. A press there counts as one on the middle of an element.
import { frameHeight, frameSides, type Placement } from './layout';
import type { WindowRecord } from './records';

const readable = 0.9; // a smaller scale is too small
const largest = 1.4;

/** Lays a dialog out and says where it belongs; undefined if it can be read as it is. */
export function layOutLong(inner: HTMLElement, { width, height }: WindowRecord): Placement | undefined {
    const { clientWidth, clientHeight } = document.documentElement;
    const nodes = [...inner.querySelectorAll<HTMLElement>('[data-element]')];
    for (const node of nodes) node.style.translate = '';
    const fits = Math.min(clientWidth / (width + frameSides), clientHeight / (height + frameHeight));
    const isLong = inner.querySelector('.choice') !== null && fits < readable;
    inner.classList.toggle('long', isLong);
    const size = isLong && clientWidth < width + frameSides ? stack(nodes, width, height) : [width, height];
    const [ownWidth = width, ownHeight = height] = size;
    inner.style.width = `${ownWidth}px`;
    inner.style.height = `${ownHeight}px`;
    inner.style.setProperty('--height', `${ownHeight}px`);
    const scale = Math.min(clientWidth / (ownWidth + frameSides), largest);
    inner.parentElement?.style.setProperty('max-height', isLong ? `${clientHeight / scale}px` : '');
    return isLong ? { left: (clientWidth - (ownWidth + frameSides) * scale) / 2, top: 0, scale } : undefined;
}

/** Puts what is in the right half, and what is in the middle, below the left half. Returns width and height of the whole. */
function stack(nodes: readonly HTMLElement[], width: number, height: number): [number, number] {
    const boxes = nodes.map((node) => {
        const [left = 0, top = 0, across = 0, down = 0] = ['left', 'top', 'width', 'height'].map((side) =>
            parseFloat(node.style.getPropertyValue(side)),
        );
        return { node, left, top, right: left + across, bottom: top + down };
    });
    const lefts = boxes.filter(({ right }) => right <= width / 2);
    const rights = boxes.filter(({ left }) => left >= width / 2);
    const margin = Math.min(...lefts.map(({ left }) => left));
    const narrow = Math.max(...lefts.map(({ right }) => right)) + margin;
    const lower = Math.max(...lefts.map(({ bottom }) => bottom));
    const across = margin - Math.min(...rights.map(({ left }) => left));
    for (const { node } of rights) node.style.translate = `${across}px ${lower}px`;
    for (const { node, left, right } of boxes)
        if (left < width / 2 && right > width / 2) node.style.translate = `${(narrow - width) / 2}px ${lower}px`;
    return [narrow, height + lower];
}

/** The place in the window that a press on such a dialog means: the middle of the element there, or none. */
export function placeInLong(x: number, y: number): [number, number] {
    const node = document.elementFromPoint(x, y)?.closest<HTMLElement>('.long [data-element]');
    return node ? middleOf(node) : [-1, -1];
}

/** The middle of an element in the window, wherever the page has moved it. */
export function middleOf({ style }: HTMLElement): [number, number] {
    const { left, top, width, height } = style;
    return [parseFloat(left) + parseFloat(width) / 2, parseFloat(top) + parseFloat(height) / 2];
}
