// The painted layer of the main window: a canvas of one pixel for each of the game's, whatever its size on the page.
const spoken =
    'Playfield. The arrow keys and Tab choose the end of a beam, Space bends it, Enter runs it forward. Shift and Tab leave the playfield.';

export class Surface {
    /** Both canvases, one on the other. */
    readonly node = make('div', 'surface');
    private readonly below: CanvasRenderingContext2D | null;
    private readonly above: CanvasRenderingContext2D | null;

    constructor(width: number, height: number) {
        this.canvas.width = width;
        this.canvas.height = height;
        // Keys play on it: see keys.ts.
        this.canvas.tabIndex = 0;
        this.canvas.setAttribute('role', 'application');
        this.canvas.setAttribute('aria-label', spoken);
        this.context = this.canvas.getContext('2d', { willReadFrequently: true });
    }

    show(pixels: Uint8ClampedArray<ArrayBuffer>, left: number, top: number, width: number): void {
        const image = new ImageData(pixels, width);
        this.above?.putImageData(image, left - field.left, top - field.top);
        if (isNearEdge(left, top, left + width, top + image.height)) this.below?.putImageData(image, left, top);
    }

    private addCanvas(
        left: number,
        top: number,
        width: number,
        height: number,
        alpha: boolean,
    ): CanvasRenderingContext2D | null {
        const canvas = add(this.node, make('canvas'));
        Object.assign(canvas, { width, height });
        Object.assign(canvas.style, { left: `${left}px`, top: `${top}px` });
        return canvas.getContext('2d', { alpha, willReadFrequently: true });
    }
}

function isNearEdge(left: number, top: number, right: number, bottom: number): boolean {
    return (
        left < field.left + seam || top < field.top + seam || right > field.right - seam || bottom > field.bottom - seam
    );
}
