// How large the game is on the page and where it is: as large as fits, in one scale, letterboxed. Where a game pixel
// comes out as a whole number of the display's, edges stay sharp.
export const gameWidth = 802;
export const gameHeight = 602;

/** Where the panel begins, to the right of the field. On an upright page it lies below the field. */
export const panelLeft = 672;
const fieldWidth = 684;
const panelHeight = 190; // in the page's pixels, on an upright page

// The nominal frame of a dialog.
export const frameSides = 4;
export const frameHeight = 27;

// A scale this little above a whole factor is taken down to it.
const snap = 1.04;

// How far from a whole factor a scale may come out that was meant to be one.
const rounding = 1e-6;

export interface Placement {
    readonly left: number;
    readonly top: number;
    readonly scale: number;
}

export class Layout {
    /** Of the main window's inner area, in the page's pixels. */
    main: Placement = { left: 0, top: 0, scale: 1 };
    /** The page is taller than wide, so the field takes its full width. */
    isUpright = false;
    private readonly listeners: (() => void)[] = [];

    constructor(private readonly room: HTMLElement) {
        new ResizeObserver(() => this.measure()).observe(room);
        // Also when the page comes to a denser display in the same size.
        addEventListener('resize', () => this.measure());
        this.measure();
    }

    whenChanged(act: () => void): void {
        this.listeners.push(act);
        act();
    }

    /** Pixels of the display for one of the game's. */
    get density(): number {
        return this.main.scale * devicePixelRatio;
    }

    get isSharp(): boolean {
        return Math.abs(this.density - Math.round(this.density)) < rounding;
    }

    /** Of a dialog's frame. On a small page it is larger than the picture behind it, so that it can be read. */
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
        this.isUpright = height > width;
        const fits = this.isUpright
            ? Math.min(width / fieldWidth, (height - panelHeight) / gameHeight)
            : Math.min(width / gameWidth, height / gameHeight);
        const whole = Math.floor(fits * devicePixelRatio);
        const scale = whole >= 1 && fits * devicePixelRatio < whole * snap ? whole / devicePixelRatio : fits;
        this.main = {
            left: wholePixel(left + (width - (this.isUpright ? fieldWidth : gameWidth) * scale) / 2),
            top: wholePixel(top + (this.isUpright ? 0 : (height - gameHeight * scale) / 2)),
            scale,
        };
        for (const act of this.listeners) act();
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

/** The nearest place at which a pixel of the display begins. */
function wholePixel(place: number): number {
    return Math.round(place * devicePixelRatio) / devicePixelRatio;
}

/** Puts a node of the game's own size at its place on the page. */
export function place(node: HTMLElement, placement: Placement): void {
    node.style.left = `${placement.left}px`;
    node.style.top = `${placement.top}px`;
    node.style.transform = `scale(${placement.scale})`;
}
