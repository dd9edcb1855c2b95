// The size and position of the game on the page: as large as fits, at one scale, letterboxed. Where a game pixel comes
// out as a whole number of display pixels, edges stay sharp.
export const gameWidth = 802;
export const gameHeight = 602;

/** Where the panel begins, to the right of the field. On a page for fingers it lies apart. */
export const panelLeft = 672;
const fieldWidth = 684;
// What the panel needs where it lies apart, in page pixels.
const panelHeight = 190; // below the field
const panelWidth = 200; // beside it

const isFlat = matchMedia('(max-height: 520px) and (min-aspect-ratio: 3 / 2)'); // as in page.css

// The nominal frame of a dialog.
export const frameSides = 4;
export const frameHeight = 27;

// A scale this little above a whole number is rounded down to it.
const snap = 1.04;

// How far a scale that should be a whole number may come out from it.
const rounding = 1e-6;

export interface Placement {
    readonly left: number;
    readonly top: number;
    readonly scale: number;
}

export class Layout {
    /** The main window's inner area, in page pixels. */
    main: Placement = { left: 0, top: 0, scale: 1 };
    /**
     * Where the panel is. On a page that is taller than wide it lies below the field, which takes the full width; on a
     * low one beside the field, which takes the full height. There its buttons have sizes for fingers.
     */
    panel: 'within' | 'below' | 'beside' = 'within';
    /** The room for the window, in game pixels. */
    width = gameWidth;
    height = gameHeight;
    private readonly listeners: (() => void)[] = [];

    constructor(private readonly room: HTMLElement) {
        new ResizeObserver(() => this.measure()).observe(room);
        // Also when the page moves to a denser display at the same size.
        addEventListener('resize', () => this.measure());
        this.measure();
    }

    whenChanged(act: () => void): void {
        this.listeners.push(act);
        act();
    }

    /** Display pixels per game pixel. */
    get density(): number {
        return this.main.scale * devicePixelRatio;
    }

    get isSharp(): boolean {
        return Math.abs(this.density - Math.round(this.density)) < rounding;
    }

    /** A dialog's frame. On a small page it is larger than the picture behind it, so that it can be read. */
    dialog(left: number, top: number, innerWidth: number, innerHeight: number): Placement {
        const width = innerWidth + frameSides;
        const height = innerHeight + frameHeight;
        const fits = Math.min(innerWidthOfPage() / width, innerHeightOfPage() / height);
        const scale = Math.max(this.main.scale, Math.min(fits, 1));
        const wantedLeft = this.main.left + left * this.main.scale - (width * (scale - this.main.scale)) / 2;
        return {
            left: wholePixel(between(wantedLeft, innerWidthOfPage() - width * scale)),
            top: wholePixel(between(this.main.top + top * this.main.scale, innerHeightOfPage() - height * scale)),
            scale,
        };
    }

    private measure(): void {
        const { left, top, width, height } = this.room.getBoundingClientRect();
        this.panel = height > width ? 'below' : isFlat.matches ? 'beside' : 'within';
        const fits = this.fitting(width, height);
        const whole = Math.floor(fits * devicePixelRatio);
        const scale = whole >= 1 && fits * devicePixelRatio < whole * snap ? whole / devicePixelRatio : fits;
        const taken = { within: gameWidth * scale, below: fieldWidth * scale, beside: width }[this.panel];
        this.main = {
            left: wholePixel(left + (width - taken) / 2),
            top: wholePixel(top + (this.panel === 'below' ? 0 : (height - gameHeight * scale) / 2)),
            scale,
        };
        this.width = width / scale;
        this.height = height / scale;
        for (const act of this.listeners) act();
    }

    private fitting(width: number, height: number): number {
        if (this.panel === 'below') return Math.min(width / fieldWidth, (height - panelHeight) / gameHeight);
        if (this.panel === 'beside') return Math.min((width - panelWidth) / fieldWidth, height / gameHeight);
        return Math.min(width / gameWidth, height / gameHeight);
    }
}

function innerWidthOfPage(): number {
    return document.documentElement.clientWidth;
}

function innerHeightOfPage(): number {
    return document.documentElement.clientHeight;
}

function between(value: number, highest: number): number {
    return Math.max(0, Math.min(value, highest));
}

/** The nearest position at which a display pixel begins. */
function wholePixel(place: number): number {
    return Math.round(place * devicePixelRatio) / devicePixelRatio;
}

/** Puts a node of the game's own size in its position on the page. */
export function place(node: HTMLElement, placement: Placement): void {
    node.style.left = `${placement.left}px`;
    node.style.top = `${placement.top}px`;
    node.style.transform = `scale(${placement.scale})`;
}
