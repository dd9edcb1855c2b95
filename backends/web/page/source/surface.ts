// The painted layer of the main window: a canvas of one pixel for each of the game's, whatever its size on the page.
const spoken =
    'Playfield. The arrow keys and Tab choose the end of a beam, Space bends it, Enter runs it forward. Shift and Tab leave the playfield.';

export class Surface {
    readonly canvas = document.createElement('canvas');
    private readonly context: CanvasRenderingContext2D | null;

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
        this.context?.putImageData(new ImageData(pixels, width), left, top);
    }
}
