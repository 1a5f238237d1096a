<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Kinalyx</name>
    <message>
        <source>
and {} more</source>
        <translation>
y {} más</translation>
    </message>
    <message>
        <source>   %1 of %2</source>
        <translation>   %1 de %2</translation>
    </message>
    <message>
        <source> Microsoft lets no other program send from this mailbox with a password any more. Use a mailbox of another provider, or that of your club.</source>
        <translation> Microsoft ya no deja que otro programa envíe desde este buzón con contraseña. Use un buzón de otro proveedor, o el de su club.</translation>
    </message>
    <message>
        <source> Providers such as this one want an "app password": a long one that you have made for this program alone on the page of your account, under security. The password with which you log in yourself does not work here.</source>
        <translation> Los proveedores como este quieren una "contraseña de aplicación": larga, creada solo para este programa en la página de su cuenta, en seguridad. La contraseña con la que usted entra no vale aquí.</translation>
    </message>
    <message>
        <source> Some servers wait for encryption from the first byte: see whether port and encryption in the settings are as your provider says.</source>
        <translation> Algunos servidores esperan el cifrado desde el primer byte: mire si el puerto y el cifrado de los ajustes son los que dice su proveedor.</translation>
    </message>
    <message>
        <source> The server says: "{} {}"</source>
        <translation> El servidor dice: "{} {}"</translation>
    </message>
    <message>
        <source> What was stored before is kept in {}.</source>
        <translation> Lo guardado antes está en {}.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> y </translation>
    </message>
    <message>
        <source> and {} more</source>
        <translation> y {} más</translation>
    </message>
    <message>
        <source> at {:.0f} a second, in truth {}MPH at {:.4g}</source>
        <translation> a {:.0f} por segundo, en verdad {}MPH a {:.4g}</translation>
    </message>
    <message>
        <source> could not be copied: </source>
        <translation> no se pudo copiar: </translation>
    </message>
    <message>
        <source> could not be moved: </source>
        <translation> no se pudo mover: </translation>
    </message>
    <message>
        <source> {}° - {}° angle I-O     {}° - {}° angle H-V </source>
        <translation> {}° - {}° ángulo I-E     {}° - {}° ángulo H-V </translation>
    </message>
    <message>
        <source> · not saved</source>
        <translation> · sin guardar</translation>
    </message>
    <message>
        <source>"%1" cannot be shown: %2</source>
        <translation>No se puede mostrar "%1": %2</translation>
    </message>
    <message>
        <source>"%1" has been unplugged.</source>
        <translation>"%1" se ha desconectado.</translation>
    </message>
    <message>
        <source>"%1" is not answering.</source>
        <translation>"%1" no responde.</translation>
    </message>
    <message>
        <source>"%1" is there already. Do you want to replace it?</source>
        <translation>"%1" ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>"%1" was saved, %2 MB.</source>
        <translation>"%1" se guardó, %2 MB.</translation>
    </message>
    <message>
        <source>"New Carve" Active. Click on the video to draw a square around the area that you want to create a MultiPicture.</source>
        <translation>"Nuevo recorte" activo. Haga clic en el vídeo para dibujar un cuadro alrededor de la zona de la que quiere una multiimagen.</translation>
    </message>
    <message>
        <source>"Then" of "Then and now" is</source>
        <translation>"Antes" de "Antes y ahora" es</translation>
    </message>
    <message>
        <source>"{}" cannot be connected with "{}".</source>
        <translation>"{}" no se puede conectar con "{}".</translation>
    </message>
    <message>
        <source>"{}" cannot be opened any more.</source>
        <translation>"{}" ya no se puede abrir.</translation>
    </message>
    <message>
        <source>"{}" cannot be put on the disc: {}.</source>
        <translation>"{}" no se puede poner en el disco: {}.</translation>
    </message>
    <message>
        <source>"{}" cannot be written: {}.</source>
        <translation>No se puede escribir "{}": {}.</translation>
    </message>
    <message>
        <source>"{}" could not be converted: {}.</source>
        <translation>No se pudo convertir "{}": {}.</translation>
    </message>
    <message>
        <source>"{}" could not be found.</source>
        <translation>No se encontró "{}".</translation>
    </message>
    <message>
        <source>"{}" could not be made there.</source>
        <translation>No se pudo crear "{}" allí.</translation>
    </message>
    <message>
        <source>"{}" could not be replaced. The folder holds old and new files now: please copy again.</source>
        <translation>No se pudo reemplazar "{}". La carpeta tiene ahora archivos viejos y nuevos: copie de nuevo.</translation>
    </message>
    <message>
        <source>"{}" has become larger than 4 GB, and a stick with {} takes no such file.</source>
        <translation>"{}" ha pasado de 4 GB, y una memoria con {} no admite un archivo así.</translation>
    </message>
    <message>
        <source>"{}" has gone, or cannot be read.</source>
        <translation>"{}" ya no está, o no se puede leer.</translation>
    </message>
    <message>
        <source>"{}" has no input "{}".</source>
        <translation>"{}" no tiene la entrada "{}".</translation>
    </message>
    <message>
        <source>"{}" has no output "{}".</source>
        <translation>"{}" no tiene la salida "{}".</translation>
    </message>
    <message>
        <source>"{}" holds a letter before the "@" that mail servers do not know.</source>
        <translation>"{}" contiene antes de "@" una letra que los servidores de correo no conocen.</translation>
    </message>
    <message>
        <source>"{}" is larger than 4 GB, and a stick with {} takes no such file. Format the stick as exFAT, or shorten the video.</source>
        <translation>"{}" pasa de 4 GB, y una memoria con {} no admite un archivo así. Formatee la memoria como exFAT, o acorte el vídeo.</translation>
    </message>
    <message>
        <source>"{}" is larger than it may be.</source>
        <translation>"{}" es mayor de lo permitido.</translation>
    </message>
    <message>
        <source>"{}" is no e-mail address.</source>
        <translation>"{}" no es un correo.</translation>
    </message>
    <message>
        <source>"{}" is no name for a file or folder on a server.</source>
        <translation>"{}" no es un nombre para un archivo o carpeta de un servidor.</translation>
    </message>
    <message>
        <source>"{}" is no port.</source>
        <translation>"{}" no es un puerto.</translation>
    </message>
    <message>
        <source>"{}" is not an email address.</source>
        <translation>"{}" no es un correo.</translation>
    </message>
    <message>
        <source>"{}" is there already.</source>
        <translation>"{}" ya existe.</translation>
    </message>
    <message>
        <source>"{}" is there already. Do you want to replace it?</source>
        <translation>"{}" ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>"{}" was closed.</source>
        <translation>Se cerró "{}".</translation>
    </message>
    <message>
        <source>"{}" was not saved. {}</source>
        <translation>"{}" no se guardó. {}</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 - Kinalyx Viewer</source>
        <translation>%1 - Kinalyx Viewer</translation>
    </message>
    <message>
        <source>%1 MB in all</source>
        <translation>%1 MB en total</translation>
    </message>
    <message>
        <source>%1 Video Selected</source>
        <translation>%1 vídeo elegido</translation>
    </message>
    <message>
        <source>%1 Videos Captured</source>
        <translation>%1 vídeos grabados</translation>
    </message>
    <message>
        <source>%1 Videos Selected</source>
        <translation>%1 vídeos elegidos</translation>
    </message>
    <message>
        <source>%1 characters at most</source>
        <translation>%1 caracteres como máximo</translation>
    </message>
    <message>
        <source>%1 file for %2, to %3</source>
        <translation>%1 archivo para %2, a %3</translation>
    </message>
    <message>
        <source>%1 files for %2, to %3</source>
        <translation>%1 archivos para %2, a %3</translation>
    </message>
    <message>
        <source>%1 for %2, as %3</source>
        <translation>%1 para %2, como %3</translation>
    </message>
    <message>
        <source>%1 kB/s</source>
        <translation>%1 kB/s</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>Líneas: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 of %2   %3</source>
        <translation>%1 de %2   %3</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 páginas</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 por ciento</translation>
    </message>
    <message>
        <source>%1 pictures lost</source>
        <translation>%1 imágenes perdidas</translation>
    </message>
    <message>
        <source>%1 pictures of %2 x %3</source>
        <translation>%1 imágenes de %2 x %3</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 píxeles</translation>
    </message>
    <message>
        <source>%1 profile successfully updated.</source>
        <translation>Perfil actualizado: %1.</translation>
    </message>
    <message>
        <source>%1 s, picture %2 of %3</source>
        <translation>%1 s, imagen %2 de %3</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>%1 squares across the picture</source>
        <translation>%1 cuadros a lo ancho de la imagen</translation>
    </message>
    <message>
        <source>%1 to Record</source>
        <translation>%1 (grabación)</translation>
    </message>
    <message>
        <source>%1%2 dB</source>
        <translation>%1%2 dB</translation>
    </message>
    <message>
        <source>%1, the other way round</source>
        <translation>%1, al revés</translation>
    </message>
    <message>
        <source>%1.88 seconds | %2%3%4 frames</source>
        <translation>%1.88 segundos | %2%3%4 fotogramas</translation>
    </message>
    <message>
        <source>%2 of these files are there already, "%1" among them. Do you want to replace them?</source>
        <translation>%2 de estos archivos ya existen, entre ellos "%1". ¿Desea reemplazarlos?</translation>
    </message>
    <message>
        <source>&amp;Double</source>
        <translation>&amp;Dos</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Dibujar</translation>
    </message>
    <message>
        <source>&amp;Draw/Seen When</source>
        <translation>&amp;Dibujar/Cuándo se ve</translation>
    </message>
    <message>
        <source>&amp;Exit Analysis</source>
        <translation>Salir d&amp;el análisis</translation>
    </message>
    <message>
        <source>&amp;Go To</source>
        <translation>&amp;Ir a</translation>
    </message>
    <message>
        <source>&amp;Input level</source>
        <translation>Nivel de &amp;entrada</translation>
    </message>
    <message>
        <source>&amp;Multi-Pic Mode</source>
        <translation>Modo &amp;multiimagen</translation>
    </message>
    <message>
        <source>&amp;Quad</source>
        <translation>&amp;Cuatro</translation>
    </message>
    <message>
        <source>&amp;Single</source>
        <translation>&amp;Una</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Transparency Mode</source>
        <translation>Modo de &amp;transparencia</translation>
    </message>
    <message>
        <source>&amp;Trigger level</source>
        <translation>Nivel de &amp;disparo</translation>
    </message>
    <message>
        <source>&amp;Triple {Triangular}</source>
        <translation>&amp;Tres {triangular}</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Vídeo</translation>
    </message>
    <message>
        <source>&amp;Video/Speed and Part Played</source>
        <translation>&amp;Vídeo/Velocidad y parte</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>V&amp;entanas</translation>
    </message>
    <message>
        <source>(no subject)</source>
        <translation>(sin asunto)</translation>
    </message>
    <message>
        <source>, and 1 other is missing and has no usable value until it is set again</source>
        <translation>, y falta 1 más, sin valor útil hasta que se fije de nuevo</translation>
    </message>
    <message>
        <source>, and {} others are missing and have no usable value until they are set again</source>
        <translation>, y faltan {} más, sin valor útil hasta que se fijen de nuevo</translation>
    </message>
    <message>
        <source>0 seconds | 00/00 frames  </source>
        <translation>0 segundos | 00/00 fotogramas  </translation>
    </message>
    <message>
        <source>0% Free</source>
        <translation>0% libre</translation>
    </message>
    <message>
        <source>1 File Copied Successfully.</source>
        <translation>1 archivo copiado.</translation>
    </message>
    <message>
        <source>1 Frame</source>
        <translation>1 fotograma</translation>
    </message>
    <message>
        <source>1 drawing</source>
        <translation>1 dibujo</translation>
    </message>
    <message>
        <source>1 file selected for download.</source>
        <translation>1 archivo elegido para descargar.</translation>
    </message>
    <message>
        <source>1 file that the lists do not show: {}</source>
        <translation>1 archivo que las listas no muestran: {}</translation>
    </message>
    <message>
        <source>1 lesson</source>
        <translation>1 lección</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message>
        <source>1 picture lost</source>
        <translation>1 imagen perdida</translation>
    </message>
    <message>
        <source>1 pixel</source>
        <translation>1 píxel</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 segundo</translation>
    </message>
    <message>
        <source>1 setting in {} could not be read ({}), so its first value holds for this run</source>
        <translation>No se pudo leer 1 ajuste en {} ({}); vale su primer valor por esta vez</translation>
    </message>
    <message>
        <source>1 to 1</source>
        <translation>1 a 1</translation>
    </message>
    <message>
        <source>1 video left to import</source>
        <translation>Queda 1 vídeo por importar</translation>
    </message>
    <message>
        <source>1 video with all drawings and notes</source>
        <translation>1 vídeo con todos los dibujos y notas</translation>
    </message>
    <message>
        <source>1080 lines</source>
        <translation>1080 líneas</translation>
    </message>
    <message>
        <source>1st DAY</source>
        <translation>DÍA 1</translation>
    </message>
    <message>
        <source>1–4 pictures  ·  ↑ ↓ delay  ·  L loop  ·  Space still  ·  K keep  ·  F left-right  ·  F11 full screen</source>
        <translation>1–4 imágenes  ·  ↑ ↓ retardo  ·  L bucle  ·  Espacio quieto  ·  K guardar  ·  F izda.-dcha.  ·  F11 pantalla completa</translation>
    </message>
    <message>
        <source>3rd DAY</source>
        <translation>DÍA 3</translation>
    </message>
    <message>
        <source>720 lines</source>
        <translation>720 líneas</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; "{}" will not be on the page: {}</source>
        <translation>&gt;&gt;&gt; "{}" no estará en la página: {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Adding File {}</source>
        <translation>&gt;&gt;&gt; Añadiendo archivo {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; BURN CANCELLED</source>
        <translation>&gt;&gt;&gt; GRABACIÓN CANCELADA</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; BURN CD FAILED {}</source>
        <translation>&gt;&gt;&gt; FALLÓ LA GRABACIÓN DEL CD {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Burn Complete!</source>
        <translation>&gt;&gt;&gt; ¡Grabación completa!</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Burn Failed {}</source>
        <translation>&gt;&gt;&gt; La grabación falló {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; CD Burn Started</source>
        <translation>&gt;&gt;&gt; Grabación del CD iniciada</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; COPY CANCELLED</source>
        <translation>&gt;&gt;&gt; COPIA CANCELADA</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Checking the disc</source>
        <translation>&gt;&gt;&gt; Comprobando el disco</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Copy Complete!</source>
        <translation>&gt;&gt;&gt; ¡Copia completa!</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Copy Failed {}</source>
        <translation>&gt;&gt;&gt; La copia falló {}</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Copying Started</source>
        <translation>&gt;&gt;&gt; Copia iniciada</translation>
    </message>
    <message>
        <source>&gt;&gt;&gt; Making MP4 of {}</source>
        <translation>&gt;&gt;&gt; Creando MP4 de {}</translation>
    </message>
    <message>
        <source>A clip is still being written. Do you want to give it up and close?</source>
        <translation>Todavía se está escribiendo un clip. ¿Desea abandonarlo y cerrar?</translation>
    </message>
    <message>
        <source>A clip of this name is being written.</source>
        <translation>Se está escribiendo un clip con ese nombre.</translation>
    </message>
    <message>
        <source>A connection to the ftp server could not be made.
{}</source>
        <translation>No se pudo conectar con el servidor FTP.
{}</translation>
    </message>
    <message>
        <source>A disc is still being written. Do you want to give it up and close?</source>
        <translation>Todavía se está escribiendo un disco. ¿Desea abandonarlo y cerrar?</translation>
    </message>
    <message>
        <source>A disc, folder or stick that plays on any computer</source>
        <translation>Un disco, carpeta o memoria que funciona en cualquier equipo</translation>
    </message>
    <message>
        <source>A few words</source>
        <translation>Unas palabras</translation>
    </message>
    <message>
        <source>A field that is renamed keeps its values.</source>
        <translation>Un campo renombrado conserva sus valores.</translation>
    </message>
    <message>
        <source>A file could not be read to its end.</source>
        <translation>No se pudo leer un archivo hasta el final.</translation>
    </message>
    <message>
        <source>A file that can be burnt, mounted or sent later.</source>
        <translation>Un archivo que se puede grabar, montar o enviar más tarde.</translation>
    </message>
    <message>
        <source>A high definition camera stores its videos as files. Connect it to the computer, choose its folder, usually F:\DCIM\VIDEO or DCIM on its card, and Kinalyx converts the videos into the student's folder.</source>
        <translation>Una cámara de alta definición guarda sus vídeos como archivos. Conéctela al equipo, elija su carpeta, normalmente F:\DCIM\VIDEO o DCIM en su tarjeta, y Kinalyx convierte los vídeos en la carpeta elegida.</translation>
    </message>
    <message>
        <source>A lesson was broken off: %1%2:%3 minutes, %4</source>
        <translation>Una lección se interrumpió: %1%2:%3 minutos, %4</translation>
    </message>
    <message>
        <source>A longer delay (Up; with Shift by 5 s)</source>
        <translation>Más retardo (flecha arriba; con Mayús 5 s)</translation>
    </message>
    <message>
        <source>A loop lasts half a minute at the most.</source>
        <translation>Un bucle dura como mucho medio minuto.</translation>
    </message>
    <message>
        <source>A loop lasts half a minute at the most. Choose a shorter stretch, or an MP4 video.</source>
        <translation>Un bucle dura como mucho medio minuto. Elija un tramo más corto, o un vídeo MP4.</translation>
    </message>
    <message>
        <source>A mail is being sent already.</source>
        <translation>Ya se está enviando un correo.</translation>
    </message>
    <message>
        <source>A name cannot be longer.</source>
        <translation>Un nombre no puede ser más largo.</translation>
    </message>
    <message>
        <source>A name cannot begin with a dot.</source>
        <translation>Un nombre no puede empezar con un punto.</translation>
    </message>
    <message>
        <source>A name cannot contain %1</source>
        <translation>Un nombre no puede contener %1</translation>
    </message>
    <message>
        <source>A name cannot contain control characters.</source>
        <translation>Un nombre no puede contener caracteres de control.</translation>
    </message>
    <message>
        <source>A name cannot hold these: \ / : * ? " &lt; &gt; | ! @ # $ % ^ &amp; + = { } [ ] ~ ` ; '</source>
        <translation>Un nombre no puede contener: \ / : * ? " &lt; &gt; | ! @ # $ % ^ &amp; + = { } [ ] ~ ` ; '</translation>
    </message>
    <message>
        <source>A page that plays on telephones, and its link by mail</source>
        <translation>Una página que funciona en teléfonos, y su enlace por correo</translation>
    </message>
    <message>
        <source>A part of the library for cameras is missing on this machine.</source>
        <translation>Falta una parte de la biblioteca de cámaras en este equipo.</translation>
    </message>
    <message>
        <source>A part of the library for videos is missing on this machine.</source>
        <translation>Falta una parte de la biblioteca de vídeo en este equipo.</translation>
    </message>
    <message>
        <source>A picture cannot be {} x {}.</source>
        <translation>Una imagen no puede ser de {} x {}.</translation>
    </message>
    <message>
        <source>A picture has not been sent by e-mail. Leaving the analysis section deletes it. Do you want to leave?</source>
        <translation>Una imagen no se ha enviado por correo. Al salir del análisis se elimina. ¿Desea salir?</translation>
    </message>
    <message>
        <source>A picture of an earlier session has not been sent. Do you want to delete it? If not, it comes before the new ones.</source>
        <translation>Una imagen de una sesión anterior no se envió. ¿Desea eliminarla? Si no, va antes de las nuevas.</translation>
    </message>
    <message>
        <source>A picture of any video of the student, at one of its marks</source>
        <translation>Una imagen de cualquier vídeo, en una de sus marcas</translation>
    </message>
    <message>
        <source>A picture takes longer than no time.</source>
        <translation>Una imagen dura más que nada.</translation>
    </message>
    <message>
        <source>A quarter</source>
        <translation>Un cuarto</translation>
    </message>
    <message>
        <source>A shorter delay (Down; with Shift by 5 s)</source>
        <translation>Menos retardo (flecha abajo; con Mayús 5 s)</translation>
    </message>
    <message>
        <source>A sound that crosses this line fires. At the right end none does.</source>
        <translation>Un sonido que cruza esta línea dispara. En el extremo derecho, ninguno.</translation>
    </message>
    <message>
        <source>A telephone on a tripod is a camera: start a camera app on it and type the address that it shows. A name may stand before it.</source>
        <translation>Un teléfono en un trípode es una cámara: abra en él una app de cámara y escriba la dirección que muestra. Delante puede ir un nombre.</translation>
    </message>
    <message>
        <source>A video from this database is open in the Analysis section. You must close the video before you can {}.</source>
        <translation>Un vídeo de esta base de datos está abierto en el análisis. Ciérrelo antes de {}.</translation>
    </message>
    <message>
        <source>A video in its window</source>
        <translation>Un vídeo en su ventana</translation>
    </message>
    <message>
        <source>A video with the name "{}" already exists in the folder named {}. Please rename the video and try again.</source>
        <translation>Ya hay un vídeo llamado "{}" en la carpeta {}. Renómbrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>A window that shows the cameras some seconds ago</source>
        <translation>Una ventana que muestra las cámaras con unos segundos de retardo</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>ABORTING (BURN ERROR)</source>
        <translation>ABORTANDO (ERROR DE GRABACIÓN)</translation>
    </message>
    <message>
        <source>ABORTING (USER)</source>
        <translation>ABORTANDO (USUARIO)</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>COLOCACIÓN</translation>
    </message>
    <message>
        <source>AVI, for computers</source>
        <translation>AVI, para ordenadores</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add %1 Videos</source>
        <translation>Añadir %1 vídeos</translation>
    </message>
    <message>
        <source>Add 1 Video</source>
        <translation>Añadir 1 vídeo</translation>
    </message>
    <message>
        <source>Add Email Address</source>
        <translation>Añadir correo</translation>
    </message>
    <message>
        <source>Add Hot Zone</source>
        <translation>Añadir zona</translation>
    </message>
    <message>
        <source>Add Lesson</source>
        <translation>Añadir lección</translation>
    </message>
    <message>
        <source>Add New</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add New {}</source>
        <translation>Añadir {}</translation>
    </message>
    <message>
        <source>Add Picture - %1</source>
        <translation>Añadir imagen - %1</translation>
    </message>
    <message>
        <source>Add Picture...</source>
        <translation>Añadir imagen...</translation>
    </message>
    <message>
        <source>Add Video</source>
        <translation>Añadir vídeo</translation>
    </message>
    <message>
        <source>Add Videos</source>
        <translation>Añadir vídeos</translation>
    </message>
    <message>
        <source>Add an instructor or database to the library</source>
        <translation>Añadir un monitor o base de datos a la videoteca</translation>
    </message>
    <message>
        <source>Add new {} to the library.</source>
        <translation>Añadir {} a la videoteca.</translation>
    </message>
    <message>
        <source>Add the first instructor beneath the list on the left.</source>
        <translation>Añada el primer monitor debajo de la lista de la izquierda.</translation>
    </message>
    <message>
        <source>Add the first instructor on the page {}.</source>
        <translation>Añada el primer monitor en la página {}.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Address of network camera %1</source>
        <translation>Dirección de la cámara de red %1</translation>
    </message>
    <message>
        <source>Address, Top, Impact, Finish</source>
        <translation>Colocación, Arriba, Impacto, Final</translation>
    </message>
    <message>
        <source>Adds the chosen lessons to the files to send (Enter)</source>
        <translation>Añade las lecciones elegidas a lo que se envía (Intro)</translation>
    </message>
    <message>
        <source>Adds the chosen videos to the files to send (Enter)</source>
        <translation>Añade los vídeos elegidos a lo que se envía (Intro)</translation>
    </message>
    <message>
        <source>Adjust Grid Size</source>
        <translation>Ajustar cuadrícula</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Advanced Strobe</source>
        <translation>Estroboscopio avanzado</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Edad</translation>
    </message>
    <message>
        <source>All 8 windows already have videos in them. Send to analysis failed.</source>
        <translation>Las 8 ventanas ya tienen vídeos. No se pudo enviar al análisis.</translation>
    </message>
    <message>
        <source>All Back 1 Frame</source>
        <translation>Todos 1 atrás</translation>
    </message>
    <message>
        <source>All Next Frame</source>
        <translation>Todos siguiente</translation>
    </message>
    <message>
        <source>All Picture Files (*.bmp;*.jpg;*.gif;*.ico)|*.bmp; *.jpg; *.gif; *.ico</source>
        <translation>Todas las imágenes (*.bmp;*.jpg;*.gif;*.ico)|*.bmp; *.jpg; *.gif; *.ico</translation>
    </message>
    <message>
        <source>All as it stands</source>
        <translation>Todo como está</translation>
    </message>
    <message>
        <source>All of them can be opened here. What is imported becomes Motion JPEG or DV.</source>
        <translation>Todas se pueden abrir aquí. Lo importado pasa a Motion JPEG o DV.</translation>
    </message>
    <message>
        <source>All videos of all %1 of this database are taken.</source>
        <translation>Se toman todos los vídeos (%1) de esta base de datos.</translation>
    </message>
    <message>
        <source>All windows as they stand</source>
        <translation>Todas las ventanas como están</translation>
    </message>
    <message>
        <source>All {} drawings</source>
        <translation>Los {} dibujos</translation>
    </message>
    <message>
        <source>Also ftps://, ftpes:// or sftp:// and the server, with a folder behind it if you like</source>
        <translation>También ftps://, ftpes:// o sftp:// y el servidor, con una carpeta detrás si quiere</translation>
    </message>
    <message>
        <source>An eighth</source>
        <translation>Un octavo</translation>
    </message>
    <message>
        <source>An error has occurred while creating the profile</source>
        <translation>Se produjo un error al crear el perfil</translation>
    </message>
    <message>
        <source>An error has occurred while editing the profile</source>
        <translation>Se produjo un error al editar el perfil</translation>
    </message>
    <message>
        <source>An image file has no tray.</source>
        <translation>Un archivo de imagen no tiene bandeja.</translation>
    </message>
    <message>
        <source>An unfinished recording was found: %1 s, %2</source>
        <translation>Se encontró una grabación sin terminar: %1 s, %2</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Análisis</translation>
    </message>
    <message>
        <source>Analysis Notes</source>
        <translation>Notas del análisis</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>Analizar</translation>
    </message>
    <message>
        <source>Analyze Video - Page Down key</source>
        <translation>Av Pág - Analizar vídeo</translation>
    </message>
    <message>
        <source>Analyze Videos</source>
        <translation>Analizar vídeos</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Another disc drive has not answered yet. Please try again later.</source>
        <translation>Otra unidad de discos aún no ha respondido. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>Another field has the name "{}" already.</source>
        <translation>Otro campo ya se llama "{}".</translation>
    </message>
    <message>
        <source>Another operation is still at work. Please wait until it has finished.</source>
        <translation>Otra operación sigue en curso. Espere a que termine.</translation>
    </message>
    <message>
        <source>Another program is using the camera.</source>
        <translation>Otro programa usa la cámara.</translation>
    </message>
    <message>
        <source>Another program is using the microphone.</source>
        <translation>Otro programa usa el micrófono.</translation>
    </message>
    <message>
        <source>Another program is using the screen.</source>
        <translation>Otro programa usa la pantalla.</translation>
    </message>
    <message>
        <source>Another window is at work on this lesson.</source>
        <translation>Otra ventana trabaja en esta lección.</translation>
    </message>
    <message>
        <source>Another window is sending videos. Wait until it has finished.</source>
        <translation>Otra ventana está enviando vídeos. Espere a que termine.</translation>
    </message>
    <message>
        <source>Another window of Kinalyx, or an earlier session, has pictures for emailing as well, and there is no room for more. Send or delete some of them first.</source>
        <translation>Otra ventana de Kinalyx, o una sesión anterior, también tiene imágenes por enviar, y no caben más. Envíe o elimine algunas antes.</translation>
    </message>
    <message>
        <source>Another window or workstation is writing to the file of the macros. Try again.</source>
        <translation>Otra ventana u otro equipo está escribiendo el archivo de macros. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>Are you sure that you want to delete the current video from the Quick Launch folder?</source>
        <translation>¿Seguro que desea eliminar este vídeo de la carpeta de acceso rápido?</translation>
    </message>
    <message>
        <source>Arriving</source>
        <translation>Llegando</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flecha</translation>
    </message>
    <message>
        <source>As filmed</source>
        <translation>Como se filmó</translation>
    </message>
    <message>
        <source>As seen here</source>
        <translation>Como se ve aquí</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>As the file says (%1)</source>
        <translation>Como dice el archivo (%1)</translation>
    </message>
    <message>
        <source>As the ruler has it</source>
        <translation>Como la regla</translation>
    </message>
    <message>
        <source>Asking the camera...</source>
        <translation>Preguntando a la cámara...</translation>
    </message>
    <message>
        <source>Asking the drive...</source>
        <translation>Preguntando a la unidad...</translation>
    </message>
    <message>
        <source>At the top of each picture</source>
        <translation>Arriba en cada imagen</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Automatic Import Active.... Waiting for new videos....</source>
        <translation>Importación automática activa.... Esperando vídeos nuevos....</translation>
    </message>
    <message>
        <source>Automatic Import Folder</source>
        <translation>Carpeta de importación</translation>
    </message>
    <message>
        <source>Automatic Naming ie: Video1 Video2 etc.</source>
        <translation>Nombres automáticos: Video1, Video2, etc.</translation>
    </message>
    <message>
        <source>Available space on removeable disk {}</source>
        <translation>Espacio libre en el disco extraíble {}</translation>
    </message>
    <message>
        <source>BACKGROUND FORMAT</source>
        <translation>FORMATO EN SEGUNDO PLANO</translation>
    </message>
    <message>
        <source>BACKSWING</source>
        <translation>SUBIDA</translation>
    </message>
    <message>
        <source>BUNKER SHOT</source>
        <translation>GOLPE DE BÚNKER</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Back one picture (Left Arrow); hold to go on</source>
        <translation>Un fotograma atrás (flecha izda.); mantenga para seguir</translation>
    </message>
    <message>
        <source>Back to Live Video</source>
        <translation>Volver al directo</translation>
    </message>
    <message>
        <source>Back to the centre at full size (keypad 5)</source>
        <translation>Al centro y a tamaño completo (num. 5)</translation>
    </message>
    <message>
        <source>Back to the logo that comes with Kinalyx</source>
        <translation>Volver al logotipo que trae Kinalyx</translation>
    </message>
    <message>
        <source>Back to the picture that comes with Kinalyx</source>
        <translation>Volver a la imagen que trae Kinalyx</translation>
    </message>
    <message>
        <source>Back to the windows (Esc)</source>
        <translation>Volver a las ventanas (Esc)</translation>
    </message>
    <message>
        <source>Background Picture</source>
        <translation>Imagen de fondo</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>Pitido</translation>
    </message>
    <message>
        <source>Beep Capture Complete. 1 video succesfully created.</source>
        <translation>Cuenta atrás completa. 1 vídeo creado.</translation>
    </message>
    <message>
        <source>Beep Capture Complete. {} videos succesfully created.</source>
        <translation>Cuenta atrás completa. {} vídeos creados.</translation>
    </message>
    <message>
        <source>Beep Capture Stopped. Ready to Record.</source>
        <translation>Cuenta atrás detenida. Listo para grabar.</translation>
    </message>
    <message>
        <source>Beep of the hot zones (M)</source>
        <translation>Pitido de las zonas (M)</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Before importing video from your camera, you must set up the camera video location in Program Setup. Click OK to go to Program Setup.</source>
        <translation>Antes de importar vídeo de su cámara, debe fijar la carpeta de la cámara en Configuración. Aceptar lleva a Configuración.</translation>
    </message>
    <message>
        <source>Before using the Auto Import feature, you must set up the Import Folder location in Program Setup. Click OK to go to Program Setup.</source>
        <translation>Antes de usar la importación automática, debe fijar la carpeta de importación en Configuración. Aceptar lleva a Configuración.</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Principio</translation>
    </message>
    <message>
        <source>Beginning of the range</source>
        <translation>Principio del tramo</translation>
    </message>
    <message>
        <source>Begins with an empty box</source>
        <translation>Empieza con un cuadro vacío</translation>
    </message>
    <message>
        <source>Black Blue</source>
        <translation>Negro y azul</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Blue White</source>
        <translation>Azul y blanco</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Both Videos Saved Successfully</source>
        <translation>Ambos vídeos guardados</translation>
    </message>
    <message>
        <source>Both videos, half and half</source>
        <translation>Ambos vídeos, mitad y mitad</translation>
    </message>
    <message>
        <source>Bring It Back</source>
        <translation>Recuperarla</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>Traer al frente</translation>
    </message>
    <message>
        <source>Brings back what was closed last (Ctrl+Shift+T)</source>
        <translation>Recupera lo último que se cerró (Ctrl+Mayús+T)</translation>
    </message>
    <message>
        <source>Brings out the edges of what is made tape a little</source>
        <translation>Realza un poco los bordes de lo que se pasa a cinta</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Browse for media file</source>
        <translation>Buscar archivo multimedia</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Burn Cancelled</source>
        <translation>Grabación cancelada</translation>
    </message>
    <message>
        <source>Burn Completed Successfully!</source>
        <translation>¡Grabación terminada!</translation>
    </message>
    <message>
        <source>Burn Failed</source>
        <translation>La grabación falló</translation>
    </message>
    <message>
        <source>Burn Lessons and Videos to CD</source>
        <translation>Grabar lecciones y vídeos en CD</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Por fecha</translation>
    </message>
    <message>
        <source>By Length</source>
        <translation>Por duración</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Por nombre</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Por tamaño</translation>
    </message>
    <message>
        <source>By what the videos are sorted</source>
        <translation>Por qué se ordenan los vídeos</translation>
    </message>
    <message>
        <source>Bytes per Second: {}</source>
        <translation>Bytes por segundo: {}</translation>
    </message>
    <message>
        <source>C - Close Current Video</source>
        <translation>C - Cerrar vídeo actual</translation>
    </message>
    <message>
        <source>CD Drive Ejected</source>
        <translation>Unidad de CD abierta</translation>
    </message>
    <message>
        <source>CD or stick</source>
        <translation>CD o memoria</translation>
    </message>
    <message>
        <source>CD/DVD Burner [%1]</source>
        <translation>Grabadora de CD/DVD [%1]</translation>
    </message>
    <message>
        <source>CHECKING</source>
        <translation>COMPROBANDO</translation>
    </message>
    <message>
        <source>CHIP SHOT</source>
        <translation>CHIP</translation>
    </message>
    <message>
        <source>CLOSING TRACK</source>
        <translation>CERRANDO PISTA</translation>
    </message>
    <message>
        <source>Calculate Distance for Lines</source>
        <translation>Medir distancia de líneas</translation>
    </message>
    <message>
        <source>Calibrate Ruler</source>
        <translation>Calibrar regla</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Cámara %1</translation>
    </message>
    <message>
        <source>Camera %1 could not be found. Connect Camera %1 to your computer and select "Retry" to connect it, or choose "Close" to ignore this message and continue.</source>
        <translation>No se encontró la cámara %1. Conecte la cámara %1 al equipo y elija "Reintentar", o elija "Cerrar" para seguir sin ella.</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Cámara 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>Cámara 2</translation>
    </message>
    <message>
        <source>Camera 2 Name Extension</source>
        <translation>Extensión de nombre de cámara 2</translation>
    </message>
    <message>
        <source>Camera {} recorded nothing.{}{}</source>
        <translation>La cámara {} no grabó nada.{}{}</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Cámaras</translation>
    </message>
    <message>
        <source>Cameras on the Network</source>
        <translation>Cámaras en la red</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel Zone</source>
        <translation>Cancelar zona</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Cancelled. The mail may have gone already. The pictures stay in the queue.</source>
        <translation>Cancelado. El correo puede haber salido ya. Las imágenes siguen en la cola.</translation>
    </message>
    <message>
        <source>Cancelled. The pictures stay in the queue.</source>
        <translation>Cancelado. Las imágenes siguen en la cola.</translation>
    </message>
    <message>
        <source>Cancelling the burning process</source>
        <translation>Cancelando la grabación</translation>
    </message>
    <message>
        <source>Cancelling the copy</source>
        <translation>Cancelando la copia</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Cannot be opened</source>
        <translation>No se puede abrir</translation>
    </message>
    <message>
        <source>Cannot connect to the Internet

{}</source>
        <translation>No se puede conectar a Internet

{}</translation>
    </message>
    <message>
        <source>Cannot find Camera %1</source>
        <translation>No se encuentra la cámara %1</translation>
    </message>
    <message>
        <source>Cannot find directories.</source>
        <translation>No se encuentran carpetas.</translation>
    </message>
    <message>
        <source>Cannot find directories. Please try again.</source>
        <translation>No se encuentran carpetas. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Cannot find files.</source>
        <translation>No se encuentran archivos.</translation>
    </message>
    <message>
        <source>Cannot find files. Please try again.</source>
        <translation>No se encuentran archivos. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Capture Interrupted, Ready for Capture.</source>
        <translation>Grabación interrumpida, listo para grabar.</translation>
    </message>
    <message>
        <source>Capture Method</source>
        <translation>Método de grabación</translation>
    </message>
    <message>
        <source>Capture Setup</source>
        <translation>Ajustes de grabación</translation>
    </message>
    <message>
        <source>Capture Time</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Capture Video - Page Up key</source>
        <translation>Re Pág - Grabar vídeo</translation>
    </message>
    <message>
        <source>Capture Videos</source>
        <translation>Grabar vídeos</translation>
    </message>
    <message>
        <source>Capture setup: kinds of cameras, naming, default cameras, cameras on the network</source>
        <translation>Ajustes de grabación: clases de cámaras, nombres, cámaras predeterminadas, cámaras en la red</translation>
    </message>
    <message>
        <source>Capture the Swing</source>
        <translation>Grabar el movimiento</translation>
    </message>
    <message>
        <source>Captures in cycle</source>
        <translation>Grabaciones por ciclo</translation>
    </message>
    <message>
        <source>Capturing Video</source>
        <translation>Grabando vídeo</translation>
    </message>
    <message>
        <source>Capturing Video. Press button again to STOP capture</source>
        <translation>Grabando vídeo. Pulse otra vez el botón para PARAR</translation>
    </message>
    <message>
        <source>Carve new MultiPicture</source>
        <translation>Nuevo recorte</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Change %1 Color</source>
        <translation>Cambiar color: %1</translation>
    </message>
    <message>
        <source>Change Text...</source>
        <translation>Cambiar texto...</translation>
    </message>
    <message>
        <source>Change left and right, as in a mirror (F)</source>
        <translation>Cambiar izquierda y derecha, como en un espejo (F)</translation>
    </message>
    <message>
        <source>Change the picture or move the heading</source>
        <translation>Cambiar la imagen o mover el título</translation>
    </message>
    <message>
        <source>Change the size: drag up or down from here</source>
        <translation>Tamaño: arrastre arriba o abajo desde aquí</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Cambiar...</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Check the disc after burning</source>
        <translation>Comprobar el disco tras grabarlo</translation>
    </message>
    <message>
        <source>Checking web for current content</source>
        <translation>Mirando el contenido actual de la web</translation>
    </message>
    <message>
        <source>Choose Logo</source>
        <translation>Elegir logotipo</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Elegir imagen</translation>
    </message>
    <message>
        <source>Choose a database first.</source>
        <translation>Elija primero una base de datos.</translation>
    </message>
    <message>
        <source>Choose a drive or folder</source>
        <translation>Elija una unidad o carpeta</translation>
    </message>
    <message>
        <source>Choose a drive or folder first.</source>
        <translation>Elija primero una unidad o carpeta.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Elija una carpeta.</translation>
    </message>
    <message>
        <source>Choose a model to see the videos.</source>
        <translation>Elija un modelo para ver los vídeos.</translation>
    </message>
    <message>
        <source>Choose a video to look at it, and to mark the part that you want.</source>
        <translation>Elija un vídeo para verlo y marcar la parte que quiere.</translation>
    </message>
    <message>
        <source>Choose a {} to see the videos.</source>
        <translation>Elija {} para ver los vídeos.</translation>
    </message>
    <message>
        <source>Choose a {}, or take the whole database.</source>
        <translation>Elija {}, o tome toda la base de datos.</translation>
    </message>
    <message>
        <source>Choose an instructor to see the {}.</source>
        <translation>Elija un monitor para ver la lista ({}).</translation>
    </message>
    <message>
        <source>Choose any folder</source>
        <translation>Elegir cualquier carpeta</translation>
    </message>
    <message>
        <source>Choose the Camera</source>
        <translation>Elegir la cámara</translation>
    </message>
    <message>
        <source>Choose the folder from which videos come</source>
        <translation>Elegir la carpeta de la que vienen los vídeos</translation>
    </message>
    <message>
        <source>Choose the folder of your camera in Program Setup first.</source>
        <translation>Elija primero en Configuración la carpeta de su cámara.</translation>
    </message>
    <message>
        <source>Choose the folder to be watched in Program Setup first.</source>
        <translation>Elija primero en Configuración la carpeta que se vigila.</translation>
    </message>
    <message>
        <source>Choose to Save New Video.</source>
        <translation>Elija guardar el nuevo vídeo.</translation>
    </message>
    <message>
        <source>Choose videos on this computer, a telephone or a card. They can also be dropped on the list.</source>
        <translation>Elija vídeos de este equipo, un teléfono o una tarjeta. También se pueden soltar en la lista.</translation>
    </message>
    <message>
        <source>Choose who it is for</source>
        <translation>Elija para quién es</translation>
    </message>
    <message>
        <source>Choose whose lesson it is.</source>
        <translation>Elija de quién es la lección.</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>City, State, Zip</source>
        <translation>Ciudad, provincia, CP</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Clásico</translation>
    </message>
    <message>
        <source>Classic window in the middle</source>
        <translation>Ventana clásica en el centro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Click Save Video to continue..</source>
        <translation>Pulse Guardar vídeo para seguir..</translation>
    </message>
    <message>
        <source>Click a drawing</source>
        <translation>Haga clic en un dibujo</translation>
    </message>
    <message>
        <source>Click on "Save Capture" to save</source>
        <translation>Pulse "Guardar grabación" para guardar</translation>
    </message>
    <message>
        <source>Click the Delete Video button to finish.</source>
        <translation>Pulse "Eliminar vídeo" para terminar.</translation>
    </message>
    <message>
        <source>Click the Delete Videos button to finish.</source>
        <translation>Pulse "Eliminar vídeos" para terminar.</translation>
    </message>
    <message>
        <source>Click the Delete {} button to finish.</source>
        <translation>Pulse "Eliminar {}" para terminar.</translation>
    </message>
    <message>
        <source>Click the link below to view your video lesson.</source>
        <translation>Pulse el enlace de abajo para ver su lección en vídeo.</translation>
    </message>
    <message>
        <source>Click the picture or the button at the end of the swing, or press the space bar. A remote control for presentations can do it too:</source>
        <translation>Haga clic en la imagen o el botón al final del movimiento, o pulse la barra espaciadora. Un mando para presentaciones también vale:</translation>
    </message>
    <message>
        <source>Click to Start Auto Import</source>
        <translation>Pulse para iniciar la importación automática</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Clock Grid</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Clone Drawings</source>
        <translation>Clonar dibujos</translation>
    </message>
    <message>
        <source>Clone Drawings to another Window</source>
        <translation>Clonar dibujos a otra ventana</translation>
    </message>
    <message>
        <source>Clone all drawings to another window. Select the window to copy to and click 'OK'</source>
        <translation>Clonar todos los dibujos a otra ventana. Elija la ventana de destino y pulse 'Aceptar'</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close "{}" all the same? Its new drawings and notes will be lost. Answer No to keep it open.</source>
        <translation>¿Cerrar "{}" de todos modos? Sus dibujos y notas nuevos se perderán. Con No queda abierto.</translation>
    </message>
    <message>
        <source>Close All Videos</source>
        <translation>Cerrar todos los vídeos</translation>
    </message>
    <message>
        <source>Close Current Video</source>
        <translation>Cerrar vídeo actual</translation>
    </message>
    <message>
        <source>Close Kinalyx</source>
        <translation>Cerrar Kinalyx</translation>
    </message>
    <message>
        <source>Close MultiPicture</source>
        <translation>Cerrar multiimagen</translation>
    </message>
    <message>
        <source>Close and Continue</source>
        <translation>Cerrar y continuar</translation>
    </message>
    <message>
        <source>Close the mirror (Esc)</source>
        <translation>Cerrar el espejo (Esc)</translation>
    </message>
    <message>
        <source>Close the notes</source>
        <translation>Cerrar las notas</translation>
    </message>
    <message>
        <source>Close the second row</source>
        <translation>Cerrar la segunda fila</translation>
    </message>
    <message>
        <source>Close without Printing</source>
        <translation>Cerrar sin imprimir</translation>
    </message>
    <message>
        <source>Closing card with your heading</source>
        <translation>Tarjeta final con su título</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Colors of the Drawing Tools</source>
        <translation>Colores de las herramientas</translation>
    </message>
    <message>
        <source>Columns of the grid over the picture</source>
        <translation>Columnas de la cuadrícula sobre la imagen</translation>
    </message>
    <message>
        <source>Company Name</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Company name</source>
        <translation>Nombre de la empresa</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Connect the camera, and its videos appear here.

%1</source>
        <translation>Conecte la cámara y sus vídeos aparecerán aquí.

%1</translation>
    </message>
    <message>
        <source>Connected. Getting Video List.</source>
        <translation>Conectado. Recibiendo la lista.</translation>
    </message>
    <message>
        <source>Connecting to Email Server</source>
        <translation>Conectando con el servidor de correo</translation>
    </message>
    <message>
        <source>Connecting to ftp server...</source>
        <translation>Conectando con el servidor FTP...</translation>
    </message>
    <message>
        <source>Connecting to the Internet...Please wait.</source>
        <translation>Conectando a Internet...Espere.</translation>
    </message>
    <message>
        <source>Connection to SMTP server not closed cleanly.</source>
        <translation>La conexión con el servidor SMTP no se cerró bien.</translation>
    </message>
    <message>
        <source>Connection to ftp server successful.</source>
        <translation>Conexión correcta con el servidor FTP.</translation>
    </message>
    <message>
        <source>Conversion and emailing complete</source>
        <translation>Conversión y correo completos</translation>
    </message>
    <message>
        <source>Conversion, uploading, and emailing complete</source>
        <translation>Conversión, subida y correo completos</translation>
    </message>
    <message>
        <source>Converting video {} of {}</source>
        <translation>Convirtiendo el vídeo {} de {}</translation>
    </message>
    <message>
        <source>Converts all that waits, one after the other, each under the next name</source>
        <translation>Convierte todo lo que espera, uno tras otro, cada uno con el nombre siguiente</translation>
    </message>
    <message>
        <source>Converts every video that arrives in the watched folder, one after the other</source>
        <translation>Convierte cada vídeo que llega a la carpeta vigilada, uno tras otro</translation>
    </message>
    <message>
        <source>Copied. You can take the stick out now.</source>
        <translation>Copiado. Ya puede retirar la memoria.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Copies the video {} with its drawings and notes. Select the removeable disk, or any other folder.</source>
        <translation>Copia el vídeo {} con sus dibujos y notas. Elija el disco extraíble u otra carpeta.</translation>
    </message>
    <message>
        <source>Copies the {} videos with their drawings and notes. Select the removeable disk, or any other folder.</source>
        <translation>Copia los {} vídeos con sus dibujos y notas. Elija el disco extraíble u otra carpeta.</translation>
    </message>
    <message>
        <source>Copies videos from this computer, a telephone or a card to the student. They can also be dropped here.</source>
        <translation>Copia vídeos de este equipo, un teléfono o una tarjeta. También se pueden soltar aquí.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy Cancelled</source>
        <translation>Copia cancelada</translation>
    </message>
    <message>
        <source>Copy Failed</source>
        <translation>La copia falló</translation>
    </message>
    <message>
        <source>Copy Picture</source>
        <translation>Copiar imagen</translation>
    </message>
    <message>
        <source>Copy Video to a Disk</source>
        <translation>Copiar vídeo a un disco</translation>
    </message>
    <message>
        <source>Copy Videos to a Disk</source>
        <translation>Copiar vídeos a un disco</translation>
    </message>
    <message>
        <source>Copy the current video to a removeable disk.</source>
        <translation>Copiar este vídeo a un disco extraíble.</translation>
    </message>
    <message>
        <source>Copy the current video to the Quick Launch folder.</source>
        <translation>Copiar este vídeo a la carpeta de acceso rápido.</translation>
    </message>
    <message>
        <source>Copy the selected videos of the drive into this library</source>
        <translation>Copiar los vídeos elegidos de la unidad a esta videoteca</translation>
    </message>
    <message>
        <source>Copy the selected videos of this library to the drive</source>
        <translation>Copiar los vídeos elegidos de esta videoteca a la unidad</translation>
    </message>
    <message>
        <source>Copy the {} selected videos to a removeable disk.</source>
        <translation>Copiar los {} vídeos elegidos a un disco extraíble.</translation>
    </message>
    <message>
        <source>Copy to Folder [%1]</source>
        <translation>Copiar a carpeta [%1]</translation>
    </message>
    <message>
        <source>Copy to a Folder or Stick</source>
        <translation>Copiar a carpeta o memoria</translation>
    </message>
    <message>
        <source>Copy to a folder or stick...</source>
        <translation>Copiar a carpeta o memoria...</translation>
    </message>
    <message>
        <source>Copy video to Quick Launch Folder</source>
        <translation>Copiar vídeo a la carpeta de acceso rápido</translation>
    </message>
    <message>
        <source>Copying Videos, Please Wait.....</source>
        <translation>Copiando vídeos, espere.....</translation>
    </message>
    <message>
        <source>Copying to %1</source>
        <translation>Copiando a %1</translation>
    </message>
    <message>
        <source>Create CD</source>
        <translation>Crear CD</translation>
    </message>
    <message>
        <source>Create Model</source>
        <translation>Crear modelo</translation>
    </message>
    <message>
        <source>Create Now</source>
        <translation>Crear ahora</translation>
    </message>
    <message>
        <source>Create a new Video Web Page</source>
        <translation>Crear una nueva página web de vídeos</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Ctrl and Shift with a click choose several, Ctrl+A all</source>
        <translation>Ctrl y Mayús con un clic eligen varios, Ctrl+A todos</translation>
    </message>
    <message>
        <source>Ctrl and Shift with a click choose several; they can be dragged to a window</source>
        <translation>Ctrl y Mayús con un clic eligen varios; se pueden arrastrar a una ventana</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Current Injuries</source>
        <translation>Lesiones actuales</translation>
    </message>
    <message>
        <source>Current video was sent to Analysis.</source>
        <translation>El vídeo se envió al análisis.</translation>
    </message>
    <message>
        <source>Currently Importing {} to filename {}</source>
        <translation>Importando {} con el nombre {}</translation>
    </message>
    <message>
        <source>Cut Another Part</source>
        <translation>Cortar otra parte</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>DISTANCE WEDGE</source>
        <translation>WEDGE</translation>
    </message>
    <message>
        <source>DV Camcorder</source>
        <translation>Videocámara DV</translation>
    </message>
    <message>
        <source>Dark Brown</source>
        <translation>Marrón oscuro</translation>
    </message>
    <message>
        <source>Dark Room</source>
        <translation>Sala oscura</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Azul oscuro</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Verde oscuro</translation>
    </message>
    <message>
        <source>Dark outline around drawings</source>
        <translation>Contorno oscuro en los dibujos</translation>
    </message>
    <message>
        <source>Dark: the film is the only color</source>
        <translation>Oscuro: solo la película tiene color</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Bases de datos</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>Default Camera {}</source>
        <translation>Cámara predeterminada {}</translation>
    </message>
    <message>
        <source>Default Camera {} not selected</source>
        <translation>Cámara predeterminada {} sin elegir</translation>
    </message>
    <message>
        <source>Default Logo</source>
        <translation>Logotipo inicial</translation>
    </message>
    <message>
        <source>Default Picture</source>
        <translation>Imagen inicial</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Delayed Mirror</source>
        <translation>Espejo</translation>
    </message>
    <message>
        <source>Delayed Mirror - Kinalyx</source>
        <translation>Espejo con retardo - Kinalyx</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete	Del</source>
        <translation>Eliminar	Supr</translation>
    </message>
    <message>
        <source>Delete All Drawings</source>
        <translation>Eliminar todos los dibujos</translation>
    </message>
    <message>
        <source>Delete All Drawings in Window</source>
        <translation>Eliminar todos los dibujos de la ventana</translation>
    </message>
    <message>
        <source>Delete All and Close</source>
        <translation>Eliminar todo y cerrar</translation>
    </message>
    <message>
        <source>Delete Bad Video</source>
        <translation>Eliminar vídeo dañado</translation>
    </message>
    <message>
        <source>Delete Instructor or Database</source>
        <translation>Eliminar monitor o base de datos</translation>
    </message>
    <message>
        <source>Delete Last Object Drawn</source>
        <translation>Eliminar último dibujo</translation>
    </message>
    <message>
        <source>Delete Picture</source>
        <translation>Eliminar imagen</translation>
    </message>
    <message>
        <source>Delete Video</source>
        <translation>Eliminar vídeo</translation>
    </message>
    <message>
        <source>Delete Videos</source>
        <translation>Eliminar vídeos</translation>
    </message>
    <message>
        <source>Delete the current instructor or database, which must be empty</source>
        <translation>Eliminar el monitor o base de datos actual, que debe estar vacío</translation>
    </message>
    <message>
        <source>Delete the current video.</source>
        <translation>Eliminar el vídeo actual.</translation>
    </message>
    <message>
        <source>Delete the current {} database, profile, and all videos.</source>
        <translation>Eliminar {}: base de datos, perfil y todos los vídeos.</translation>
    </message>
    <message>
        <source>Delete the selected drawing (Delete)</source>
        <translation>Eliminar el dibujo elegido (Supr)</translation>
    </message>
    <message>
        <source>Delete the {} selected videos.</source>
        <translation>Eliminar los {} vídeos elegidos.</translation>
    </message>
    <message>
        <source>Delete these {} videos</source>
        <translation>Eliminar estos {} vídeos</translation>
    </message>
    <message>
        <source>Delete this video: {}</source>
        <translation>Eliminar este vídeo: {}</translation>
    </message>
    <message>
        <source>Delete this {}</source>
        <translation>Eliminar {}</translation>
    </message>
    <message>
        <source>Delete {}</source>
        <translation>Eliminar {}</translation>
    </message>
    <message>
        <source>Deleting temporary videos...</source>
        <translation>Eliminando vídeos temporales...</translation>
    </message>
    <message>
        <source>Detailed</source>
        <translation>Detallado</translation>
    </message>
    <message>
        <source>Details Off</source>
        <translation>Menos detalle</translation>
    </message>
    <message>
        <source>Disc drive</source>
        <translation>Unidad de discos</translation>
    </message>
    <message>
        <source>Disc image (*.iso)|*.iso</source>
        <translation>Imagen de disco (*.iso)|*.iso</translation>
    </message>
    <message>
        <source>Disk Full or Not Available</source>
        <translation>Disco lleno o no disponible</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>No esperar</translation>
    </message>
    <message>
        <source>Do you want to delete all {} pictures without sending?</source>
        <translation>¿Desea eliminar las {} imágenes sin enviarlas?</translation>
    </message>
    <message>
        <source>Do you want to delete the picture without sending?</source>
        <translation>¿Desea eliminar la imagen sin enviarla?</translation>
    </message>
    <message>
        <source>Do you want to throw the unfinished lesson away?</source>
        <translation>¿Desea descartar la lección sin terminar?</translation>
    </message>
    <message>
        <source>Do you want to throw the unfinished recording away?</source>
        <translation>¿Desea descartar la grabación sin terminar?</translation>
    </message>
    <message>
        <source>Do you want to throw this lesson away?</source>
        <translation>¿Desea descartar esta lección?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Done (Esc)</source>
        <translation>Listo (Esc)</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Dos</translation>
    </message>
    <message>
        <source>Double Screen</source>
        <translation>Dos ventanas</translation>
    </message>
    <message>
        <source>Double Screen, one over the other</source>
        <translation>Dos ventanas, una sobre otra</translation>
    </message>
    <message>
        <source>Double click or press %1 to open a video</source>
        <translation>Doble clic o tecla %1 para abrir un vídeo</translation>
    </message>
    <message>
        <source>Double {Horizontal}</source>
        <translation>Dos {horizontal}</translation>
    </message>
    <message>
        <source>Down Arrow</source>
        <translation>Flecha abajo</translation>
    </message>
    <message>
        <source>Down Arrow - Play</source>
        <translation>Flecha abajo - Reproducir</translation>
    </message>
    <message>
        <source>Down the Line</source>
        <translation>Desde atrás</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Download Cancelled</source>
        <translation>Descarga cancelada</translation>
    </message>
    <message>
        <source>Download Complete</source>
        <translation>Descarga completa</translation>
    </message>
    <message>
        <source>Download Complete. 1 was in your library already.</source>
        <translation>Descarga completa. 1 ya estaba en su videoteca.</translation>
    </message>
    <message>
        <source>Download Complete. {} were in your library already.</source>
        <translation>Descarga completa. {} ya estaban en su videoteca.</translation>
    </message>
    <message>
        <source>Download Model Videos</source>
        <translation>Descargar vídeos de modelos</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Descargando</translation>
    </message>
    <message>
        <source>Drag a rectangle over the picture</source>
        <translation>Dibuje un cuadro sobre la imagen</translation>
    </message>
    <message>
        <source>Drag a rectangle over the picture: it beeps when something moves in it (Z)</source>
        <translation>Dibuje un cuadro sobre la imagen: pita cuando algo se mueve en él (Z)</translation>
    </message>
    <message>
        <source>Drag the mouse over the part of the video that you want to cut out.</source>
        <translation>Arrastre el ratón sobre la parte del vídeo que quiere recortar.</translation>
    </message>
    <message>
        <source>Drag the piece to where you want it</source>
        <translation>Arrastre el recorte adonde quiera</translation>
    </message>
    <message>
        <source>Drag the piece to where you want it.</source>
        <translation>Arrastre el recorte adonde quiera.</translation>
    </message>
    <message>
        <source>Drag the two ends. Arrow keys step, I starts and O ends here, P plays.</source>
        <translation>Arrastre los dos extremos. Las flechas avanzan, I empieza y O acaba aquí, P reproduce.</translation>
    </message>
    <message>
        <source>Drag the two ends. Arrow keys step, S starts and E ends here, Space plays.</source>
        <translation>Arrastre los dos extremos. Las flechas avanzan, S empieza y E acaba aquí, Espacio reproduce.</translation>
    </message>
    <message>
        <source>Drag to change the size</source>
        <translation>Arrastre para cambiar el tamaño</translation>
    </message>
    <message>
        <source>Drag to move the drawing</source>
        <translation>Arrastre para mover el dibujo</translation>
    </message>
    <message>
        <source>Drag to turn the drawing</source>
        <translation>Arrastre para girar el dibujo</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Dibujar</translation>
    </message>
    <message>
        <source>Draw Circle from Center</source>
        <translation>Círculo desde el centro</translation>
    </message>
    <message>
        <source>Draw Straight Arrow</source>
        <translation>Dibujar flecha recta</translation>
    </message>
    <message>
        <source>Draw Straight Line</source>
        <translation>Dibujar línea recta</translation>
    </message>
    <message>
        <source>Draw Text</source>
        <translation>Escribir texto</translation>
    </message>
    <message>
        <source>Draw a line along something whose length you know, then type that length.</source>
        <translation>Dibuje una línea sobre algo cuya longitud conozca y escriba esa longitud.</translation>
    </message>
    <message>
        <source>Draw a line first</source>
        <translation>Dibuje primero una línea</translation>
    </message>
    <message>
        <source>Draw a square round what the pictures shall show</source>
        <translation>Dibuje un cuadro alrededor de lo que deben mostrar las imágenes</translation>
    </message>
    <message>
        <source>Draw in this color: %1</source>
        <translation>Dibujar en este color: %1</translation>
    </message>
    <message>
        <source>Draw something first</source>
        <translation>Dibuje algo primero</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Drawing macros</source>
        <translation>Macros de dibujo</translation>
    </message>
    <message>
        <source>Drawing {} in Color</source>
        <translation>Se dibuja {} en color</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>Dibujos</translation>
    </message>
    <message>
        <source>Drawings not saved</source>
        <translation>Dibujos sin guardar</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Drive Error</source>
        <translation>Error de unidad</translation>
    </message>
    <message>
        <source>Drive Not Ready</source>
        <translation>Unidad no lista</translation>
    </message>
    <message>
        <source>Drive Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Drive is NOT Ready</source>
        <translation>Unidad NO lista</translation>
    </message>
    <message>
        <source>Drive is Ready</source>
        <translation>Unidad lista</translation>
    </message>
    <message>
        <source>Drive is not ready...Insert a CD and test again.{}</source>
        <translation>La unidad no está lista...Inserte un CD y pruebe de nuevo.{}</translation>
    </message>
    <message>
        <source>Drive is ready</source>
        <translation>La unidad está lista</translation>
    </message>
    <message>
        <source>Drive or Folder</source>
        <translation>Unidad o carpeta</translation>
    </message>
    <message>
        <source>Drive or folder</source>
        <translation>Unidad o carpeta</translation>
    </message>
    <message>
        <source>Driver, vault, squat ...</source>
        <translation>Drive, salto, sentadilla ...</translation>
    </message>
    <message>
        <source>Drop the videos on the name of a %1.</source>
        <translation>Suelte los vídeos sobre un nombre (%1).</translation>
    </message>
    <message>
        <source>Drop to add the files to the Files to Send list.</source>
        <translation>Suelte para añadir los archivos a la lista de envío.</translation>
    </message>
    <message>
        <source>Drop to copy the videos to %1.</source>
        <translation>Suelte para copiar los vídeos a %1.</translation>
    </message>
    <message>
        <source>Drop videos here, or choose Browse.</source>
        <translation>Suelte vídeos aquí, o elija Examinar.</translation>
    </message>
    <message>
        <source>Duplicate	Ctrl+D</source>
        <translation>Duplicar	Ctrl+D</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>E-Mail Addresses</source>
        <translation>Direcciones de correo</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>ERASING</source>
        <translation>BORRANDO</translation>
    </message>
    <message>
        <source>Each file goes in a mail of its own</source>
        <translation>Cada archivo va en su propio correo</translation>
    </message>
    <message>
        <source>Each tool has its own color</source>
        <translation>Cada herramienta tiene su color</translation>
    </message>
    <message>
        <source>Each video as MP4 with its drawings, and index.html. It takes a while.</source>
        <translation>Cada vídeo como MP4 con sus dibujos, e index.html. Tarda un poco.</translation>
    </message>
    <message>
        <source>Each video has a ruler of its own</source>
        <translation>Cada vídeo tiene su propia regla</translation>
    </message>
    <message>
        <source>Earlier in the report</source>
        <translation>Antes en el informe</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit Bar: Size and Turn</source>
        <translation>Barra de edición: tamaño y giro</translation>
    </message>
    <message>
        <source>Edit Drawings</source>
        <translation>Editar dibujos</translation>
    </message>
    <message>
        <source>Edit all drawings of the window as one</source>
        <translation>Editar todos los dibujos de la ventana como uno</translation>
    </message>
    <message>
        <source>Edit the fields of the %1 and choose "Save" to modify.</source>
        <translation>Cambie los campos (%1) y elija "Guardar" para aplicar.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Ocho</translation>
    </message>
    <message>
        <source>Eight Windows</source>
        <translation>Ocho ventanas</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Expulsar</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Email %1</source>
        <translation>Correo a %1</translation>
    </message>
    <message>
        <source>Email address of %1</source>
        <translation>Correo de %1</translation>
    </message>
    <message>
        <source>Email- Send SnapShots</source>
        <translation>Correo: enviar imágenes</translation>
    </message>
    <message>
        <source>Email- Take SnapShot</source>
        <translation>Correo: tomar imagen</translation>
    </message>
    <message>
        <source>Empty: as a guest</source>
        <translation>Vacío: como invitado</translation>
    </message>
    <message>
        <source>Encrypted after the greeting (TLS)</source>
        <translation>Cifrado tras el saludo (TLS)</translation>
    </message>
    <message>
        <source>Encrypted from the start (SSL)</source>
        <translation>Cifrado desde el principio (SSL)</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>Acaba aquí</translation>
    </message>
    <message>
        <source>End at %1</source>
        <translation>Acaba en %1</translation>
    </message>
    <message>
        <source>End at {}</source>
        <translation>Acaba en {}</translation>
    </message>
    <message>
        <source>End of the range</source>
        <translation>Final del tramo</translation>
    </message>
    <message>
        <source>End time %1</source>
        <translation>Final en %1</translation>
    </message>
    <message>
        <source>Enter Your Company Name Here</source>
        <translation>Escriba aquí el nombre de su empresa</translation>
    </message>
    <message>
        <source>Enter Your Name Here</source>
        <translation>Escriba aquí su nombre</translation>
    </message>
    <message>
        <source>Enter the web address and the FTP address of your web space in Program Setup first.</source>
        <translation>Escriba antes en Configuración la dirección web y la dirección FTP de su espacio web.</translation>
    </message>
    <message>
        <source>Erase the Disc?</source>
        <translation>¿Borrar el disco?</translation>
    </message>
    <message>
        <source>Error sending email. Check your email settings in the Program Setup section.</source>
        <translation>Error al enviar el correo. Revise los ajustes de correo en Configuración.</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Esc - Close All Videos</source>
        <translation>Esc - Cerrar todos los vídeos</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export Cancelled</source>
        <translation>Exportación cancelada</translation>
    </message>
    <message>
        <source>Export Videos</source>
        <translation>Exportar vídeos</translation>
    </message>
    <message>
        <source>Export to C?</source>
        <translation>¿Exportar a C?</translation>
    </message>
    <message>
        <source>Exporting Videos, Please Wait.....</source>
        <translation>Exportando vídeos, espere.....</translation>
    </message>
    <message>
        <source>Exposure, gain, focus and white balance of the camera</source>
        <translation>Exposición, ganancia, enfoque y balance de blancos de la cámara</translation>
    </message>
    <message>
        <source>F - Flip Video</source>
        <translation>F - Reflejar vídeo</translation>
    </message>
    <message>
        <source>F1 - FreeHand</source>
        <translation>F1 - Mano alzada</translation>
    </message>
    <message>
        <source>F10 - Clock Grid</source>
        <translation>F10 - Reloj</translation>
    </message>
    <message>
        <source>F11 - Arrow</source>
        <translation>F11 - Flecha</translation>
    </message>
    <message>
        <source>F12 - Grid</source>
        <translation>F12 - Cuadrícula</translation>
    </message>
    <message>
        <source>F2 - Plus Sign</source>
        <translation>F2 - Signo más</translation>
    </message>
    <message>
        <source>F3 - Square</source>
        <translation>F3 - Cuadrado</translation>
    </message>
    <message>
        <source>F4 - Line</source>
        <translation>F4 - Línea</translation>
    </message>
    <message>
        <source>F5 - Circle</source>
        <translation>F5 - Círculo</translation>
    </message>
    <message>
        <source>F6 - Angle</source>
        <translation>F6 - Ángulo</translation>
    </message>
    <message>
        <source>F7 - Motion Path</source>
        <translation>F7 - Ruta</translation>
    </message>
    <message>
        <source>F8 - Parallelogram</source>
        <translation>F8 - Paralelogramo</translation>
    </message>
    <message>
        <source>F9 - Shade Zone</source>
        <translation>F9 - Zona sombreada</translation>
    </message>
    <message>
        <source>FOLLOWTHROUGH</source>
        <translation>TERMINACIÓN</translation>
    </message>
    <message>
        <source>FTP address</source>
        <translation>Dirección FTP</translation>
    </message>
    <message>
        <source>Face On</source>
        <translation>De frente</translation>
    </message>
    <message>
        <source>Failed to save the picture to the file: '{}'
{}</source>
        <translation>No se pudo guardar la imagen en el archivo: '{}'
{}</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Más rápido</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>Máxima</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pies</translation>
    </message>
    <message>
        <source>Fetch the file</source>
        <translation>Bajar el archivo</translation>
    </message>
    <message>
        <source>Field %1</source>
        <translation>Campo %1</translation>
    </message>
    <message>
        <source>Figures Beside Drawings</source>
        <translation>Cifras junto a dibujos</translation>
    </message>
    <message>
        <source>Figures beside drawings</source>
        <translation>Cifras junto a los dibujos</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File Conversion, Save and Move Complete</source>
        <translation>Conversión, guardado y traslado completos</translation>
    </message>
    <message>
        <source>File already exists. Choose a different name.</source>
        <translation>El archivo ya existe. Elija otro nombre.</translation>
    </message>
    <message>
        <source>File successfully removed from Files to Send list.</source>
        <translation>Archivo quitado de la lista de envío.</translation>
    </message>
    <message>
        <source>Files Are There Already</source>
        <translation>Los archivos ya existen</translation>
    </message>
    <message>
        <source>Files cannot go encrypted in the active mode on this computer. Choose the passive mode.</source>
        <translation>En este equipo los archivos no pueden ir cifrados en modo activo. Elija el modo pasivo.</translation>
    </message>
    <message>
        <source>Files that you choose yourself are imported under "Manually Import Video".</source>
        <translation>Los archivos que elige usted se importan en "Importar a mano".</translation>
    </message>
    <message>
        <source>Files to Import</source>
        <translation>Archivos por importar</translation>
    </message>
    <message>
        <source>Files to Send</source>
        <translation>Para enviar</translation>
    </message>
    <message>
        <source>Files to import</source>
        <translation>Archivos por importar</translation>
    </message>
    <message>
        <source>Fill All w/Current Video</source>
        <translation>Llenar todas con este vídeo</translation>
    </message>
    <message>
        <source>Fill Bottom w/Current Video</source>
        <translation>Llenar abajo con este vídeo</translation>
    </message>
    <message>
        <source>Fill Top w/Current Video</source>
        <translation>Llenar arriba con este vídeo</translation>
    </message>
    <message>
        <source>Fill a monitor</source>
        <translation>Llenar un monitor</translation>
    </message>
    <message>
        <source>Fills the height of the window</source>
        <translation>Llena el alto de la ventana</translation>
    </message>
    <message>
        <source>Find a %1</source>
        <translation>Buscar: %1</translation>
    </message>
    <message>
        <source>Find in the library</source>
        <translation>Buscar en la videoteca</translation>
    </message>
    <message>
        <source>Find people, videos and notes (Ctrl+F)</source>
        <translation>Buscar personas, vídeos y notas (Ctrl+F)</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminar</translation>
    </message>
    <message>
        <source>Finished Recording</source>
        <translation>Grabación terminada</translation>
    </message>
    <message>
        <source>Firewire Camera(s)</source>
        <translation>Cámara(s) Firewire</translation>
    </message>
    <message>
        <source>Firewire camcorders are a great solution to use with the Kinalyx software (you will know you have the right type of camera if it uses dv tapes). Using firewire has many advantages for video analysis, and is the only type of camera that utilizes ALL of the Kinalyx features.

Connect the camcorder and turn it on before you start the program. It captures 60 frames per second.</source>
        <translation>Las videocámaras Firewire son una gran solución para Kinalyx (sabrá que tiene la adecuada si usa cintas DV). Firewire tiene muchas ventajas para el análisis de vídeo, y es el único tipo de cámara que aprovecha TODAS las funciones de Kinalyx.

Conecte la videocámara y enciéndala antes de abrir el programa. Graba 60 imágenes por segundo.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>First select an Instructor or Database from the list below. Then, fill out the New {} information and choose "Save".</source>
        <translation>Elija primero un monitor o una base de datos de la lista. Rellene luego los datos ({}) y elija "Guardar".</translation>
    </message>
    <message>
        <source>Fit Picture in Window</source>
        <translation>Ajustar imagen a ventana</translation>
    </message>
    <message>
        <source>Fit the whole picture in its window, or fill the window (W)</source>
        <translation>Ajustar la imagen entera, o llenar la ventana (W)</translation>
    </message>
    <message>
        <source>Five lines over the picture, and on printouts</source>
        <translation>Cinco líneas sobre la imagen y en las impresiones</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Bandera</translation>
    </message>
    <message>
        <source>Flip Video</source>
        <translation>Reflejar vídeo</translation>
    </message>
    <message>
        <source>Folder for the Clip</source>
        <translation>Carpeta para el clip</translation>
    </message>
    <message>
        <source>Folder of the videos</source>
        <translation>Carpeta de los vídeos</translation>
    </message>
    <message>
        <source>Folder...</source>
        <translation>Carpeta...</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>For Which %1</source>
        <translation>Para: %1</translation>
    </message>
    <message>
        <source>Format, Width, Height, Rate, Length, Duration, File size, Color, Sound</source>
        <translation>Formato, Ancho, Alto, Frecuencia, Longitud, Duración, Tamaño, Color, Sonido</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formatos</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Frames between poses</source>
        <translation>Salto entre poses</translation>
    </message>
    <message>
        <source>Frames from one layer of a strobe to the next</source>
        <translation>Fotogramas de una capa del estroboscopio a otra</translation>
    </message>
    <message>
        <source>Frames from one picture to the next</source>
        <translation>Fotogramas de una imagen a la siguiente</translation>
    </message>
    <message>
        <source>Frames of the video</source>
        <translation>Fotogramas del vídeo</translation>
    </message>
    <message>
        <source>Freehand</source>
        <translation>Mano alzada</translation>
    </message>
    <message>
        <source>Freeze Video</source>
        <translation>Congelar</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>From Disk...</source>
        <translation>Del disco...</translation>
    </message>
    <message>
        <source>From Here On</source>
        <translation>Desde aquí</translation>
    </message>
    <message>
        <source>From the level</source>
        <translation>Desde la horizontal</translation>
    </message>
    <message>
        <source>From the upright</source>
        <translation>Desde la vertical</translation>
    </message>
    <message>
        <source>Full Screen Mode (Recommended)</source>
        <translation>Pantalla completa (recomendado)</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Pantalla completa (F11)</translation>
    </message>
    <message>
        <source>Full size, centred (J)</source>
        <translation>Tamaño completo, centrado (J)</translation>
    </message>
    <message>
        <source>GIF, a short silent loop</source>
        <translation>GIF, un bucle corto y mudo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>General Folder</source>
        <translation>Carpeta general</translation>
    </message>
    <message>
        <source>Get More Information</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>Getting Ready to Capture Video #{} of {} in {} seconds</source>
        <translation>Se grabará el vídeo n.º {} de {} en {} segundos</translation>
    </message>
    <message>
        <source>Getting Video {} of {}</source>
        <translation>Recibiendo el vídeo {} de {}</translation>
    </message>
    <message>
        <source>Gives up this file and those that wait. Nothing half done is left.</source>
        <translation>Abandona este archivo y los que esperan. No queda nada a medias.</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Go to "%1", picture %2</source>
        <translation>Ir a "%1", imagen %2</translation>
    </message>
    <message>
        <source>Go to Analysis with what is sent</source>
        <translation>Ir al análisis con lo enviado</translation>
    </message>
    <message>
        <source>Go to Program Setup</source>
        <translation>Ir a Configuración</translation>
    </message>
    <message>
        <source>Go to this mark</source>
        <translation>Ir a esta marca</translation>
    </message>
    <message>
        <source>Go to this mark. A right click names it.</source>
        <translation>Ir a esta marca. Un clic derecho la nombra.</translation>
    </message>
    <message>
        <source>Goes to Capture Videos, where the cameras stand in a list above the picture</source>
        <translation>Va a Grabar vídeos, donde las cámaras están en una lista sobre la imagen</translation>
    </message>
    <message>
        <source>Google takes no password of the account here but an app password: a long one for this program alone. Switch on 2-Step Verification, then make one at myaccount.google.com/apppasswords.</source>
        <translation>Google no admite aquí la contraseña de la cuenta, sino una de aplicación: larga y solo para este programa. Active la verificación en dos pasos y cree una en myaccount.google.com/apppasswords.</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Green Tan</source>
        <translation>Verde y beige</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>HDV camcorders, discs</source>
        <translation>videocámaras HDV, discos</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Mitad</translation>
    </message>
    <message>
        <source>Half Speed</source>
        <translation>Media velocidad</translation>
    </message>
    <message>
        <source>Half speed</source>
        <translation>Media velocidad</translation>
    </message>
    <message>
        <source>Hard Disk Space</source>
        <translation>Espacio en disco</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Heading line %1</source>
        <translation>Línea %1 del título</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Estatura</translation>
    </message>
    <message>
        <source>Help Menu</source>
        <translation>Menú de ayuda</translation>
    </message>
    <message>
        <source>Help and Demos</source>
        <translation>Ayuda y demos</translation>
    </message>
    <message>
        <source>Here are the pictures of your video analysis.</source>
        <translation>Aquí están las imágenes de su análisis de vídeo.</translation>
    </message>
    <message>
        <source>Hide Drawings</source>
        <translation>Ocultar dibujos</translation>
    </message>
    <message>
        <source>High Def Automatic Import</source>
        <translation>Importación HD automática</translation>
    </message>
    <message>
        <source>High Def Camera Import</source>
        <translation>Importar cámara HD</translation>
    </message>
    <message>
        <source>High Definition Camera</source>
        <translation>Cámara de alta definición</translation>
    </message>
    <message>
        <source>Holds the picture to draw upon, and lets it go on (Space)</source>
        <translation>Detiene la imagen para dibujar, y la deja seguir (Espacio)</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Hot zones are muted</source>
        <translation>Las zonas están en silencio</translation>
    </message>
    <message>
        <source>Hot zones beep again (M)</source>
        <translation>Las zonas pitan de nuevo (M)</translation>
    </message>
    <message>
        <source>Hot zones glow without a beep (M)</source>
        <translation>Las zonas brillan sin pitar (M)</translation>
    </message>
    <message>
        <source>How fast it was taken could not be stored: {}</source>
        <translation>No se pudo guardar a qué velocidad se tomó: {}</translation>
    </message>
    <message>
        <source>How its fields are shown could not be noted: {}</source>
        <translation>No se pudo anotar cómo se muestran sus campos: {}</translation>
    </message>
    <message>
        <source>How its fields are shown could not be stored: {}</source>
        <translation>No se pudo guardar cómo se muestran sus campos: {}</translation>
    </message>
    <message>
        <source>How little must move in a hot zone to beep: at the right end a leaf does</source>
        <translation>Cuánto debe moverse algo en una zona para pitar: a la derecha basta una hoja</translation>
    </message>
    <message>
        <source>How much of the piece is seen over the video beneath</source>
        <translation>Cuánto se ve el recorte sobre el vídeo de debajo</translation>
    </message>
    <message>
        <source>How sensitive the microphone is: higher where hits are far away</source>
        <translation>Sensibilidad del micrófono: más alta donde los golpes quedan lejos</translation>
    </message>
    <message>
        <source>How the pictures come</source>
        <translation>Cómo llegan las imágenes</translation>
    </message>
    <message>
        <source>IDLE</source>
        <translation>EN REPOSO</translation>
    </message>
    <message>
        <source>IMPORTING SESSION</source>
        <translation>IMPORTANDO SESIÓN</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Archivo de imagen</translation>
    </message>
    <message>
        <source>Image file</source>
        <translation>Archivo de imagen</translation>
    </message>
    <message>
        <source>Image file (.iso)...</source>
        <translation>Archivo de imagen (.iso)...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Import Cancelled</source>
        <translation>Importación cancelada</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Carpeta de importación</translation>
    </message>
    <message>
        <source>Import Videos</source>
        <translation>Importar vídeos</translation>
    </message>
    <message>
        <source>Import/Export</source>
        <translation>Importar/Exportar</translation>
    </message>
    <message>
        <source>Import/Export Videos</source>
        <translation>Importar/exportar vídeos</translation>
    </message>
    <message>
        <source>Importing Videos... Please Wait.....</source>
        <translation>Importando vídeos... Espere.....</translation>
    </message>
    <message>
        <source>Importing {} to filename {}</source>
        <translation>Importando {} con el nombre {}</translation>
    </message>
    <message>
        <source>Importing {} to filename {} in {} seconds.</source>
        <translation>Se importa {} con el nombre {} en {} segundos.</translation>
    </message>
    <message>
        <source>In this video 1 {} is {:.4g} pixels.</source>
        <translation>En este vídeo 1 {} son {:.4g} píxeles.</translation>
    </message>
    <message>
        <source>In your library already</source>
        <translation>Ya en su videoteca</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Input of the microphone</source>
        <translation>Entrada del micrófono</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Insert Drawing Macro</source>
        <translation>Insertar macro</translation>
    </message>
    <message>
        <source>Instructor or Database</source>
        <translation>Monitor o base de datos</translation>
    </message>
    <message>
        <source>Instructor or database</source>
        <translation>Monitor o base de datos</translation>
    </message>
    <message>
        <source>Instructors</source>
        <translation>Monitores</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Internet connection failed.</source>
        <translation>Falló la conexión a Internet.</translation>
    </message>
    <message>
        <source>Invalid Character in name. Please try again.</source>
        <translation>Carácter no válido en el nombre. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Invalid character in Name</source>
        <translation>Carácter no válido en el nombre</translation>
    </message>
    <message>
        <source>Invalid character in name.</source>
        <translation>Carácter no válido en el nombre.</translation>
    </message>
    <message>
        <source>Invalid character in {} Name.</source>
        <translation>Carácter no válido en el nombre ({}).</translation>
    </message>
    <message>
        <source>Invalid character in {} name.</source>
        <translation>Carácter no válido en el nombre ({}).</translation>
    </message>
    <message>
        <source>Is seen as a whole</source>
        <translation>Se ve entero</translation>
    </message>
    <message>
        <source>Is there</source>
        <translation>Ya está</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>No se puede leer.</translation>
    </message>
    <message>
        <source>It goes to the trash of the desktop, from where it can be taken back.</source>
        <translation>Va a la papelera del escritorio, de donde se puede recuperar.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Ya no está.</translation>
    </message>
    <message>
        <source>It lies in "{}": {}</source>
        <translation>Está en "{}": {}</translation>
    </message>
    <message>
        <source>It lies in {}</source>
        <translation>Está en {}</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>Se canceló.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Its folder in the library cannot be made.</source>
        <translation>No se puede crear su carpeta en la videoteca.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>K keeps %1 in %2</source>
        <translation>K guarda %1 en %2</translation>
    </message>
    <message>
        <source>K: the next video has no name yet</source>
        <translation>K: el próximo vídeo aún no tiene nombre</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Keep the camera's picture size</source>
        <translation>Conservar el tamaño de la cámara</translation>
    </message>
    <message>
        <source>Keep the videos in a folder of your choice, for example on a server</source>
        <translation>Guardar los vídeos en una carpeta a su elección, por ejemplo en un servidor</translation>
    </message>
    <message>
        <source>Keeping {:.1f} s...</source>
        <translation>Guardando {:.1f} s...</translation>
    </message>
    <message>
        <source>Keeps the drawings as a macro and lays them on the video in analysis</source>
        <translation>Guarda los dibujos como macro y los pone sobre el vídeo en análisis</translation>
    </message>
    <message>
        <source>Keeps the notes in a file</source>
        <translation>Guarda las notas en un archivo</translation>
    </message>
    <message>
        <source>Keeps the strip as a PNG or JPEG picture</source>
        <translation>Guarda la tira como imagen PNG o JPEG</translation>
    </message>
    <message>
        <source>Keeps the strobe as a PNG or JPEG picture</source>
        <translation>Guarda el estrobo como imagen PNG o JPEG</translation>
    </message>
    <message>
        <source>Kept: {}</source>
        <translation>Guardado: {}</translation>
    </message>
    <message>
        <source>Key H</source>
        <translation>Tecla H</translation>
    </message>
    <message>
        <source>Keys and drawing tools as they have always been</source>
        <translation>Teclas y herramientas de dibujo como siempre</translation>
    </message>
    <message>
        <source>Keys and tools</source>
        <translation>Teclas y herramientas</translation>
    </message>
    <message>
        <source>Kilometers per hour</source>
        <translation>Kilómetros por hora</translation>
    </message>
    <message>
        <source>Kinalyx Initial Setup</source>
        <translation>Configuración inicial</translation>
    </message>
    <message>
        <source>Kinalyx Viewer</source>
        <translation>Kinalyx Viewer</translation>
    </message>
    <message>
        <source>Kinalyx broke off last time. A report of it lies on this computer, and is sent nowhere.</source>
        <translation>Kinalyx se interrumpió la última vez. El informe está en este equipo y no se envía a nadie.</translation>
    </message>
    <message>
        <source>Kinalyx is running already, but does not answer. Do you want to start it once more?</source>
        <translation>Kinalyx ya está abierto, pero no responde. ¿Desea abrirlo otra vez?</translation>
    </message>
    <message>
        <source>Kinalyx starts anew to change its language.</source>
        <translation>Kinalyx se reinicia para cambiar el idioma.</translation>
    </message>
    <message>
        <source>Kinalyx starts anew to change its window.</source>
        <translation>Kinalyx se reinicia para cambiar su ventana.</translation>
    </message>
    <message>
        <source>Kinalyx watches a folder. Each video that arrives there is converted and kept under the next name, while you go on teaching.</source>
        <translation>Kinalyx vigila una carpeta. Cada vídeo que llega se convierte y se guarda con el nombre siguiente, mientras usted sigue enseñando.</translation>
    </message>
    <message>
        <source>Kinds of Video</source>
        <translation>Clases de vídeo</translation>
    </message>
    <message>
        <source>Kinds of video</source>
        <translation>Clases de vídeo</translation>
    </message>
    <message>
        <source>L - Loop Video</source>
        <translation>L - Repetir vídeo</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Large (Windowed 1280x800)</source>
        <translation>Grande (ventana 1280x800)</translation>
    </message>
    <message>
        <source>Last Video Saved Successfully</source>
        <translation>Último vídeo guardado</translation>
    </message>
    <message>
        <source>Last Video Saved Successfully. The original is still in its folder: {}</source>
        <translation>Último vídeo guardado. El original sigue en su carpeta: {}</translation>
    </message>
    <message>
        <source>Last Video WAS NOT SAVED</source>
        <translation>El último vídeo NO SE GUARDÓ</translation>
    </message>
    <message>
        <source>Last Video WAS NOT SAVED: {}</source>
        <translation>El último vídeo NO SE GUARDÓ: {}</translation>
    </message>
    <message>
        <source>Last video saved was sent to Analysis.</source>
        <translation>El último vídeo se envió al análisis.</translation>
    </message>
    <message>
        <source>Later in the report</source>
        <translation>Después en el informe</translation>
    </message>
    <message>
        <source>Lays the drawing over the current video in place of what is drawn there</source>
        <translation>Pone el dibujo sobre el vídeo actual en lugar de lo que hay dibujado</translation>
    </message>
    <message>
        <source>Lays the poses from start to end into one picture; without an end, to the last one</source>
        <translation>Pone las poses de principio a fin en una imagen; sin final, hasta la última</translation>
    </message>
    <message>
        <source>Leave multi-picture mode first (Esc)</source>
        <translation>Salga primero del modo multiimagen (Esc)</translation>
    </message>
    <message>
        <source>Leave the transparency carve first (Esc)</source>
        <translation>Salga primero del recorte transparente (Esc)</translation>
    </message>
    <message>
        <source>Leave transparency mode (Esc)</source>
        <translation>Salir de la transparencia (Esc)</translation>
    </message>
    <message>
        <source>Leave transparency mode first (Esc)</source>
        <translation>Salga primero del modo de transparencia (Esc)</translation>
    </message>
    <message>
        <source>Left Arrow</source>
        <translation>Flecha izda.</translation>
    </message>
    <message>
        <source>Left Arrow - Back 1 Frame</source>
        <translation>Flecha izda. - 1 fotograma atrás</translation>
    </message>
    <message>
        <source>Left arrow</source>
        <translation>Flecha izquierda</translation>
    </message>
    <message>
        <source>Left arrow key</source>
        <translation>Flecha izquierda</translation>
    </message>
    <message>
        <source>Lefty Print</source>
        <translation>Impresión de zurdo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Length is in</source>
        <translation>Longitud en</translation>
    </message>
    <message>
        <source>Lesson Name already exists. Please choose a different name.</source>
        <translation>Ya existe una lección con ese nombre. Elija otro.</translation>
    </message>
    <message>
        <source>Lesson paused: Stop Recording</source>
        <translation>Lección en pausa: detener grabación</translation>
    </message>
    <message>
        <source>Lesson successfully added to the Files to Send list.</source>
        <translation>Lección añadida a la lista de envío.</translation>
    </message>
    <message>
        <source>Lesson: Stop Recording</source>
        <translation>Lección: detener grabación</translation>
    </message>
    <message>
        <source>Lessons</source>
        <translation>Lecciones</translation>
    </message>
    <message>
        <source>Lessons and videos</source>
        <translation>Lecciones y vídeos</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Level of the microphone</source>
        <translation>Nivel del micrófono</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Videoteca</translation>
    </message>
    <message>
        <source>Light, as it has always been</source>
        <translation>Claro, como siempre</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Line Up Videos by Mark</source>
        <translation>Alinear vídeos por marca</translation>
    </message>
    <message>
        <source>Line drawn</source>
        <translation>Línea dibujada</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>Lines lean</source>
        <translation>Inclinación</translation>
    </message>
    <message>
        <source>List of videos to open</source>
        <translation>Lista de vídeos para abrir</translation>
    </message>
    <message>
        <source>Lit when there are drawings on the video</source>
        <translation>Encendido si hay dibujos sobre el vídeo</translation>
    </message>
    <message>
        <source>Lit when there are notes on the video</source>
        <translation>Encendido si hay notas del vídeo</translation>
    </message>
    <message>
        <source>Live %1</source>
        <translation>En vivo %1</translation>
    </message>
    <message>
        <source>Live Draw &amp; Hot Zones</source>
        <translation>Dibujo en vivo &amp; zonas</translation>
    </message>
    <message>
        <source>Live Draw &amp;&amp; Hot Zones</source>
        <translation>Dibujo en vivo &amp;&amp; zonas</translation>
    </message>
    <message>
        <source>Live Video</source>
        <translation>En directo</translation>
    </message>
    <message>
        <source>Live draw is shown</source>
        <translation>Se muestra el dibujo en vivo</translation>
    </message>
    <message>
        <source>Load %1 Files</source>
        <translation>Cargar archivos (%1)</translation>
    </message>
    <message>
        <source>Loading Analysis</source>
        <translation>Cargando análisis</translation>
    </message>
    <message>
        <source>Loading Analysis Section...</source>
        <translation>Cargando análisis...</translation>
    </message>
    <message>
        <source>Lock All Four Videos</source>
        <translation>Bloquear los cuatro</translation>
    </message>
    <message>
        <source>Lock Videos Together</source>
        <translation>Bloquear vídeos juntos</translation>
    </message>
    <message>
        <source>Lock all four videos together</source>
        <translation>Bloquear los cuatro vídeos</translation>
    </message>
    <message>
        <source>Locked videos back one frame; hold to go on</source>
        <translation>Vídeos bloqueados un fotograma atrás; mantenga para seguir</translation>
    </message>
    <message>
        <source>Locked videos forward one frame; hold to go on</source>
        <translation>Vídeos bloqueados un fotograma adelante; mantenga para seguir</translation>
    </message>
    <message>
        <source>Locked videos go by the time</source>
        <translation>Los vídeos bloqueados van por tiempo</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Login or password hold a line end or another control character.</source>
        <translation>El usuario o la contraseña contienen un fin de línea u otro carácter de control.</translation>
    </message>
    <message>
        <source>Login or password of your mailbox are not set yet. Type them in Program Setup, Internet.</source>
        <translation>Faltan el usuario o la contraseña de su buzón. Escríbalos en Configuración, Internet.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotipo</translation>
    </message>
    <message>
        <source>Long term Goals</source>
        <translation>Metas lejanas</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>Look at It</source>
        <translation>Verlo</translation>
    </message>
    <message>
        <source>Look for a new version at start</source>
        <translation>Buscar versión nueva al iniciar</translation>
    </message>
    <message>
        <source>Looking for cameras...</source>
        <translation>Buscando cámaras...</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Buscando impresoras...</translation>
    </message>
    <message>
        <source>Looking through the library ... %1</source>
        <translation>Revisando la videoteca ... %1</translation>
    </message>
    <message>
        <source>Looking...</source>
        <translation>Buscando...</translation>
    </message>
    <message>
        <source>Looks at the folder again</source>
        <translation>Mira de nuevo la carpeta</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Bucle</translation>
    </message>
    <message>
        <source>Loop (%1)</source>
        <translation>Repetir (%1)</translation>
    </message>
    <message>
        <source>Loop (L)</source>
        <translation>Repetir (L)</translation>
    </message>
    <message>
        <source>Loop All Videos</source>
        <translation>Repetir todos los vídeos</translation>
    </message>
    <message>
        <source>Loop and keep fewer seconds (-)</source>
        <translation>Repetir y guardar menos segundos (-)</translation>
    </message>
    <message>
        <source>Loop and keep more seconds (+)</source>
        <translation>Repetir y guardar más segundos (+)</translation>
    </message>
    <message>
        <source>MP4 for old telephones</source>
        <translation>MP4 para teléfonos antiguos</translation>
    </message>
    <message>
        <source>MP4 video</source>
        <translation>Vídeo MP4</translation>
    </message>
    <message>
        <source>MP4, for telephones too</source>
        <translation>MP4, también para teléfonos</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Mail server (SMTP)</source>
        <translation>Servidor de correo (SMTP)</translation>
    </message>
    <message>
        <source>Mail service</source>
        <translation>Servicio de correo</translation>
    </message>
    <message>
        <source>Main Menu</source>
        <translation>Menú principal</translation>
    </message>
    <message>
        <source>Main Menu - End key</source>
        <translation>Fin - Menú principal</translation>
    </message>
    <message>
        <source>Manually Import Video</source>
        <translation>Importar a mano</translation>
    </message>
    <message>
        <source>Manually enter all Video Names</source>
        <translation>Escribir todos los nombres a mano</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Mark %1</source>
        <translation>Marca %1</translation>
    </message>
    <message>
        <source>Mark Video Position</source>
        <translation>Marcar posición</translation>
    </message>
    <message>
        <source>Marked picture {}. Name it...</source>
        <translation>Imagen {} marcada. Nombrarla...</translation>
    </message>
    <message>
        <source>Marks another area of the same video</source>
        <translation>Marca otra zona del mismo vídeo</translation>
    </message>
    <message>
        <source>Marks of this video</source>
        <translation>Marcas de este vídeo</translation>
    </message>
    <message>
        <source>Maroon Tan</source>
        <translation>Granate y beige</translation>
    </message>
    <message>
        <source>Maximize Current Video</source>
        <translation>Maximizar vídeo actual</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Medida</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Medidas</translation>
    </message>
    <message>
        <source>Measures (nothing is measured)</source>
        <translation>Medidas (no hay nada medido)</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Medición</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Medium (Windowed 1024x768)</source>
        <translation>Mediana (ventana 1024x768)</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Metros</translation>
    </message>
    <message>
        <source>Meters per second</source>
        <translation>Metros por segundo</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>Microphone Active... Monitoring for Sound</source>
        <translation>Micrófono activo... Vigilando el sonido</translation>
    </message>
    <message>
        <source>Microsoft lets no other program send from Hotmail and Outlook.com with a password any more. Choose another service, or Other with the mailbox of your club.</source>
        <translation>Microsoft ya no deja que otro programa envíe desde Hotmail y Outlook.com con contraseña. Elija otro servicio, u Otro con el buzón de su club.</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Millas por hora</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espejo</translation>
    </message>
    <message>
        <source>Missing: %1. Install the package libavcodec-extra, and start the program again.</source>
        <translation>Falta: %1. Instale el paquete libavcodec-extra y abra el programa de nuevo.</translation>
    </message>
    <message>
        <source>Mix of the two videos</source>
        <translation>Mezcla de los dos vídeos</translation>
    </message>
    <message>
        <source>Model Swing</source>
        <translation>Swing modelo</translation>
    </message>
    <message>
        <source>Model Videos</source>
        <translation>Vídeos de modelos</translation>
    </message>
    <message>
        <source>Model videos are still coming. Do you want to give them up?</source>
        <translation>Todavía llegan vídeos de modelos. ¿Desea abandonarlos?</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelos</translation>
    </message>
    <message>
        <source>Monitoring Video... Click at end of swing.</source>
        <translation>Vigilando el vídeo... Haga clic al final del movimiento.</translation>
    </message>
    <message>
        <source>More tools, in a second row</source>
        <translation>Más herramientas, en una segunda fila</translation>
    </message>
    <message>
        <source>Most often your e-mail address</source>
        <translation>Casi siempre su dirección de correo</translation>
    </message>
    <message>
        <source>Motion Analysis</source>
        <translation>Análisis de movimiento</translation>
    </message>
    <message>
        <source>Motion analysis for sports instructors.</source>
        <translation>Análisis de movimiento para monitores.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Move All Videos</source>
        <translation>Mover todos los vídeos</translation>
    </message>
    <message>
        <source>Move Heading</source>
        <translation>Mover título</translation>
    </message>
    <message>
        <source>Move the current video to a different instructor or database.</source>
        <translation>Mover este vídeo a otro monitor o base de datos.</translation>
    </message>
    <message>
        <source>Move the current {} to another database or instructor.</source>
        <translation>Mover {} a otro monitor o base de datos.</translation>
    </message>
    <message>
        <source>Move the {} selected videos to a different instructor or database.</source>
        <translation>Mover los {} vídeos elegidos a otro monitor o base de datos.</translation>
    </message>
    <message>
        <source>Move these {} videos</source>
        <translation>Mover estos {} vídeos</translation>
    </message>
    <message>
        <source>Move this video: {}</source>
        <translation>Mover este vídeo: {}</translation>
    </message>
    <message>
        <source>Move this {}</source>
        <translation>Mover {}</translation>
    </message>
    <message>
        <source>Move: drag from here, or press Shift and an arrow key</source>
        <translation>Mover: arrastre desde aquí, o pulse Mayús y una flecha</translation>
    </message>
    <message>
        <source>Moves the current video</source>
        <translation>Mueve el vídeo actual</translation>
    </message>
    <message>
        <source>Moves the locked videos together</source>
        <translation>Mueve juntos los vídeos bloqueados</translation>
    </message>
    <message>
        <source>Multi-Picture Mode</source>
        <translation>Modo multiimagen</translation>
    </message>
    <message>
        <source>NOTES AND FIELDS</source>
        <translation>NOTAS Y CAMPOS</translation>
    </message>
    <message>
        <source>NTSC, 60 fields a second</source>
        <translation>NTSC, 60 campos por segundo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name and company appear on printouts and in your mails. All of this can be changed at any time under Program Setup.</source>
        <translation>Nombre y empresa aparecen en impresiones y en sus correos. Todo esto se puede cambiar en Configuración.</translation>
    </message>
    <message>
        <source>Name and password have fields of their own: they do not belong into the address.</source>
        <translation>El nombre y la contraseña tienen campos propios: no van en la dirección.</translation>
    </message>
    <message>
        <source>Name of the Video</source>
        <translation>Nombre del vídeo</translation>
    </message>
    <message>
        <source>Name of the lesson</source>
        <translation>Nombre de la lección</translation>
    </message>
    <message>
        <source>Name of the mark</source>
        <translation>Nombre de la marca</translation>
    </message>
    <message>
        <source>Name of the new instructor or database</source>
        <translation>Nombre del nuevo monitor o base de datos</translation>
    </message>
    <message>
        <source>Name of the next video</source>
        <translation>Nombre del próximo vídeo</translation>
    </message>
    <message>
        <source>Names of the videos</source>
        <translation>Nombres de los vídeos</translation>
    </message>
    <message>
        <source>Needs a layout of four, six or eight windows and a video in the current one</source>
        <translation>Requiere cuatro, seis u ocho ventanas y un vídeo en la actual</translation>
    </message>
    <message>
        <source>Needs a layout of several windows and a video in the current one</source>
        <translation>Requiere varias ventanas y un vídeo en la actual</translation>
    </message>
    <message>
        <source>Needs drawings in the current window and a video in another one</source>
        <translation>Requiere dibujos en la ventana actual y un vídeo en otra</translation>
    </message>
    <message>
        <source>Needs the picture of a camera</source>
        <translation>Requiere la imagen de una cámara</translation>
    </message>
    <message>
        <source>Needs videos in two windows or more</source>
        <translation>Requiere vídeos en dos o más ventanas</translation>
    </message>
    <message>
        <source>Needs videos in windows 1 and 2, or 3 and 4, side by side</source>
        <translation>Requiere vídeos en las ventanas 1 y 2, o 3 y 4, lado a lado</translation>
    </message>
    <message>
        <source>Needs videos in windows 1 to 4, in a layout of four windows or more</source>
        <translation>Requiere vídeos en las ventanas 1 a 4, con cuatro ventanas o más</translation>
    </message>
    <message>
        <source>Neither of the two videos could be saved: </source>
        <translation>No se pudo guardar ninguno de los dos vídeos: </translation>
    </message>
    <message>
        <source>Network Path Change</source>
        <translation>Cambio de ruta de red</translation>
    </message>
    <message>
        <source>Network Server Enabled</source>
        <translation>Servidor de red activado</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>New Kinalyx Update Available!</source>
        <translation>¡Nueva versión de Kinalyx!</translation>
    </message>
    <message>
        <source>New macro</source>
        <translation>Nueva macro</translation>
    </message>
    <message>
        <source>New {} successfully created.</source>
        <translation>Creado: {}.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Next Drawing</source>
        <translation>Dibujo siguiente</translation>
    </message>
    <message>
        <source>Next drawing (Tab)</source>
        <translation>Dibujo siguiente (Tab)</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Imagen siguiente</translation>
    </message>
    <message>
        <source>Next picture (Right Arrow); hold to go on</source>
        <translation>Fotograma siguiente (flecha dcha.); mantenga para seguir</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No %1 Selected</source>
        <translation>Sin elegir: %1</translation>
    </message>
    <message>
        <source>No %1 here.</source>
        <translation>Aquí no hay %1.</translation>
    </message>
    <message>
        <source>No Available space on removeable disk</source>
        <translation>No hay espacio en el disco extraíble</translation>
    </message>
    <message>
        <source>No Camera {} Saved</source>
        <translation>Ninguna cámara {} guardada</translation>
    </message>
    <message>
        <source>No Email address on file.</source>
        <translation>No hay correo registrado.</translation>
    </message>
    <message>
        <source>No Name</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>No Pictures to Send.</source>
        <translation>No hay imágenes que enviar.</translation>
    </message>
    <message>
        <source>No Videos Selected</source>
        <translation>Ningún vídeo elegido</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>Sin cámara</translation>
    </message>
    <message>
        <source>No camera is chosen.</source>
        <translation>No hay cámara elegida.</translation>
    </message>
    <message>
        <source>No camera is connected. Plug one in, and it shows here.</source>
        <translation>No hay cámara conectada. Conecte una y se verá aquí.</translation>
    </message>
    <message>
        <source>No change of drawings or zones to undo</source>
        <translation>No hay cambios de dibujos o zonas que deshacer</translation>
    </message>
    <message>
        <source>No change of drawings or zones was undone</source>
        <translation>No se deshizo ningún cambio de dibujos o zonas</translation>
    </message>
    <message>
        <source>No change of the drawings in the current window to undo</source>
        <translation>No hay cambios de dibujos que deshacer en la ventana actual</translation>
    </message>
    <message>
        <source>No change of the drawings in the current window was undone</source>
        <translation>No se deshizo ningún cambio de dibujos en la ventana actual</translation>
    </message>
    <message>
        <source>No drawing of the current video belongs to a moment</source>
        <translation>Ningún dibujo del vídeo actual pertenece a un momento</translation>
    </message>
    <message>
        <source>No drive</source>
        <translation>Sin unidad</translation>
    </message>
    <message>
        <source>No folder is chosen yet.</source>
        <translation>Aún no hay carpeta elegida.</translation>
    </message>
    <message>
        <source>No instructors or databases here.</source>
        <translation>Aquí no hay monitores ni bases de datos.</translation>
    </message>
    <message>
        <source>No lessons yet. Record Lesson in the analysis section makes one.</source>
        <translation>Aún no hay lecciones. Grabar lección, en el análisis, crea una.</translation>
    </message>
    <message>
        <source>No macros yet. Draw something, then choose Save Drawing Macro.</source>
        <translation>Aún no hay macros. Dibuje algo y elija Guardar macro.</translation>
    </message>
    <message>
        <source>No mail server is set yet. Choose your mail service in Program Setup, Internet.</source>
        <translation>Aún no hay servidor de correo. Elija su servicio de correo en Configuración, Internet.</translation>
    </message>
    <message>
        <source>No mail server is set.</source>
        <translation>No hay servidor de correo definido.</translation>
    </message>
    <message>
        <source>No microphone is chosen.</source>
        <translation>No hay micrófono elegido.</translation>
    </message>
    <message>
        <source>No microphone is chosen: see Program Setup, Capture.</source>
        <translation>No hay micrófono elegido: vea Configuración, Grabación.</translation>
    </message>
    <message>
        <source>No microphone is connected</source>
        <translation>No hay micrófono conectado</translation>
    </message>
    <message>
        <source>No microphone is connected.</source>
        <translation>No hay micrófono conectado.</translation>
    </message>
    <message>
        <source>No microphone is connected. Plug one in, and try again.</source>
        <translation>No hay micrófono conectado. Conecte uno e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Sin impresora</translation>
    </message>
    <message>
        <source>No printer is set up on this machine, or none answers. The pages can be kept as a PDF file.</source>
        <translation>No hay impresora en este equipo, o ninguna responde. Las páginas se pueden guardar como archivo PDF.</translation>
    </message>
    <message>
        <source>No ruler here yet. Measure with the one used last?</source>
        <translation>Aún no hay regla. ¿Medir con la última?</translation>
    </message>
    <message>
        <source>No server for model videos is set. If your club or association has one, type its address into Program Setup, Internet.</source>
        <translation>No hay servidor de vídeos de modelos. Si su club o federación tiene uno, escriba su dirección en Configuración, Internet.</translation>
    </message>
    <message>
        <source>No server for updates is set. Type the address that you were given into "Server for updates" first.</source>
        <translation>No hay servidor de actualizaciones. Escriba antes en "Servidor de actualizaciones" la dirección que le dieron.</translation>
    </message>
    <message>
        <source>No server is set.</source>
        <translation>No hay servidor definido.</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>Sin sonido</translation>
    </message>
    <message>
        <source>No two videos have a mark of the same name: a right click on a mark names it</source>
        <translation>No hay dos vídeos con una marca del mismo nombre: un clic derecho en una marca la nombra</translation>
    </message>
    <message>
        <source>No video here</source>
        <translation>Aquí no hay vídeo</translation>
    </message>
    <message>
        <source>No video in this window</source>
        <translation>No hay vídeo en esta ventana</translation>
    </message>
    <message>
        <source>No video was closed, or every window is taken</source>
        <translation>No se cerró ningún vídeo, o todas las ventanas están ocupadas</translation>
    </message>
    <message>
        <source>No videos here.</source>
        <translation>Aquí no hay vídeos.</translation>
    </message>
    <message>
        <source>No videos lie in the library folder itself.</source>
        <translation>No hay vídeos en la propia carpeta de la videoteca.</translation>
    </message>
    <message>
        <source>No videos were copied to {}</source>
        <translation>No se copiaron vídeos a {}</translation>
    </message>
    <message>
        <source>No videos were moved.</source>
        <translation>No se movió ningún vídeo.</translation>
    </message>
    <message>
        <source>No videos yet. Capture or import one, or copy video files into the folder of this {}.</source>
        <translation>Aún no hay vídeos. Grabe o importe uno, o copie archivos de vídeo en esta carpeta ({}).</translation>
    </message>
    <message>
        <source>No videos yet. Copy one here with Quick Launch +.</source>
        <translation>Aún no hay vídeos. Copie uno aquí con Acceso rápido +.</translation>
    </message>
    <message>
        <source>No {} here yet.</source>
        <translation>Aún no hay {} aquí.</translation>
    </message>
    <message>
        <source>No {} here yet. Add the first one beneath this list.</source>
        <translation>Aún no hay {} aquí. Añada la primera entrada debajo de la lista.</translation>
    </message>
    <message>
        <source>No {} here.</source>
        <translation>Aquí no hay {}.</translation>
    </message>
    <message>
        <source>None is connected: no voice</source>
        <translation>No hay ninguno: sin voz</translation>
    </message>
    <message>
        <source>None of these files is a video that can be imported.</source>
        <translation>Ninguno de estos archivos es un vídeo que se pueda importar.</translation>
    </message>
    <message>
        <source>None: no voice</source>
        <translation>Ninguno: sin voz</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Not all of the picture is seen: a click brings the whole of it back</source>
        <translation>No se ve toda la imagen: un clic la recupera entera</translation>
    </message>
    <message>
        <source>Not before it is plugged in again</source>
        <translation>No antes de volver a conectarlo</translation>
    </message>
    <message>
        <source>Not in use</source>
        <translation>Sin usar</translation>
    </message>
    <message>
        <source>Not kept. Choose on the capture page whose video it is.</source>
        <translation>Sin guardar. Elija en la página de grabación de quién es el vídeo.</translation>
    </message>
    <message>
        <source>Not kept. The camera has only just begun.</source>
        <translation>Sin guardar. La cámara acaba de empezar.</translation>
    </message>
    <message>
        <source>Not kept. The disk does not answer.</source>
        <translation>Sin guardar. El disco no responde.</translation>
    </message>
    <message>
        <source>Not kept. {}</source>
        <translation>Sin guardar. {}</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Sin guardar</translation>
    </message>
    <message>
        <source>Not sent. The pictures stay in the queue.</source>
        <translation>No enviado. Las imágenes siguen en la cola.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Notes (*.txt;*.html;*.htm)|*.txt; *.html; *.htm</source>
        <translation>Notas (*.txt;*.html;*.htm)|*.txt; *.html; *.htm</translation>
    </message>
    <message>
        <source>Notes of another video of this name are in the way.</source>
        <translation>Estorban las notas de otro vídeo con ese nombre.</translation>
    </message>
    <message>
        <source>Nothing can be kept while the capture page has the camera.</source>
        <translation>No se puede guardar nada mientras la página de grabación tiene la cámara.</translation>
    </message>
    <message>
        <source>Nothing is drawn here</source>
        <translation>Aquí no hay dibujos</translation>
    </message>
    <message>
        <source>Nothing is drawn in the current window</source>
        <translation>No hay nada dibujado en la ventana actual</translation>
    </message>
    <message>
        <source>Nothing is drawn on the picture</source>
        <translation>No hay nada dibujado en la imagen</translation>
    </message>
    <message>
        <source>Nothing of it could be written.</source>
        <translation>No se pudo escribir nada.</translation>
    </message>
    <message>
        <source>Nothing of that time is remembered yet.</source>
        <translation>Aún no se recuerda nada de ese momento.</translation>
    </message>
    <message>
        <source>Nothing to send yet. Choose videos or lessons on the left and add them, or drag them here.</source>
        <translation>Aún no hay nada. Elija vídeos o lecciones a la izquierda y añádalos, o arrástrelos aquí.</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>No se copió nada.</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>No se encontró nada.</translation>
    </message>
    <message>
        <source>Nothing was heard.</source>
        <translation>No se oyó nada.</translation>
    </message>
    <message>
        <source>Nothing was printed. The printer "{}" does not take the pages: {}</source>
        <translation>No se imprimió nada. La impresora "{}" no admite las páginas: {}</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>No se guardó nada.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>Number of the picture that is shown</source>
        <translation>Número de la imagen mostrada</translation>
    </message>
    <message>
        <source>O - Open New Video</source>
        <translation>O - Abrir otro vídeo</translation>
    </message>
    <message>
        <source>OGG files</source>
        <translation>archivos OGG</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>On This Picture</source>
        <translation>En esta imagen</translation>
    </message>
    <message>
        <source>On Whole Video</source>
        <translation>En todo el vídeo</translation>
    </message>
    <message>
        <source>On the left side</source>
        <translation>A la izquierda</translation>
    </message>
    <message>
        <source>On the right side</source>
        <translation>A la derecha</translation>
    </message>
    <message>
        <source>One Cam</source>
        <translation>1 cámara</translation>
    </message>
    <message>
        <source>One Click</source>
        <translation>Un clic</translation>
    </message>
    <message>
        <source>One file was copied that cannot be opened. It may be damaged, or be no video:
</source>
        <translation>Un archivo copiado no se puede abrir. Puede estar dañado, o no ser un vídeo:
</translation>
    </message>
    <message>
        <source>One new video on "{}"</source>
        <translation>Un vídeo nuevo en "{}"</translation>
    </message>
    <message>
        <source>Only video 1</source>
        <translation>Solo el vídeo 1</translation>
    </message>
    <message>
        <source>Only video 2</source>
        <translation>Solo el vídeo 2</translation>
    </message>
    <message>
        <source>Only {} s of this camera fit into the memory. Choose a shorter delay.</source>
        <translation>Solo caben {} s de esta cámara en memoria. Elija un retardo menor.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Opacity of the piece</source>
        <translation>Opacidad del recorte</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open Edit Bar</source>
        <translation>Abrir barra de edición</translation>
    </message>
    <message>
        <source>Open From Disk...</source>
        <translation>Abrir del disco...</translation>
    </message>
    <message>
        <source>Open Notes</source>
        <translation>Abrir notas</translation>
    </message>
    <message>
        <source>Open Videos</source>
        <translation>Abrir vídeos</translation>
    </message>
    <message>
        <source>Open Videos From Disk</source>
        <translation>Abrir vídeos del disco</translation>
    </message>
    <message>
        <source>Open a video first</source>
        <translation>Abra primero un vídeo</translation>
    </message>
    <message>
        <source>Open a video first.</source>
        <translation>Abra primero un vídeo.</translation>
    </message>
    <message>
        <source>Open videos in windows 1 and 2 first</source>
        <translation>Abra primero vídeos en las ventanas 1 y 2</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>Opens notes that were kept in a file</source>
        <translation>Abre notas guardadas en un archivo</translation>
    </message>
    <message>
        <source>Opens the video that was saved last in the analysis section</source>
        <translation>Abre en el análisis el último vídeo guardado</translation>
    </message>
    <message>
        <source>Opens videos that lie anywhere, as they lie: nothing is copied to the library</source>
        <translation>Abre vídeos de cualquier lugar, donde están: no se copia nada a la videoteca</translation>
    </message>
    <message>
        <source>Opens what belongs together with a distance wedge, chip, bunker or putting video</source>
        <translation>Abre lo que va junto con un vídeo de wedge, chip, búnker o putt</translation>
    </message>
    <message>
        <source>Operation Cancelled</source>
        <translation>Operación cancelada</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
    <message>
        <source>Other Name...</source>
        <translation>Otro nombre...</translation>
    </message>
    <message>
        <source>Other extension</source>
        <translation>Otra extensión</translation>
    </message>
    <message>
        <source>Outdoor Mode</source>
        <translation>Al aire libre</translation>
    </message>
    <message>
        <source>P - Play / Pause Toggle</source>
        <translation>P - Reproducir / Pausa</translation>
    </message>
    <message>
        <source>PAL, 50 fields a second</source>
        <translation>PAL, 50 campos por segundo</translation>
    </message>
    <message>
        <source>PEOPLE</source>
        <translation>PERSONAS</translation>
    </message>
    <message>
        <source>PNG picture (*.png)|*.png|JPEG picture (*.jpg *.jpeg)|*.jpg; *.jpeg</source>
        <translation>Imagen PNG (*.png)|*.png|Imagen JPEG (*.jpg *.jpeg)|*.jpg; *.jpeg</translation>
    </message>
    <message>
        <source>PREPARING</source>
        <translation>PREPARANDO</translation>
    </message>
    <message>
        <source>PUTTING</source>
        <translation>PUTT</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>Page from which a new version is fetched</source>
        <translation>Página de la que se baja una versión nueva</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Ancho de página</translation>
    </message>
    <message>
        <source>Page {}</source>
        <translation>Página {}</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Pan down (keypad 2); hold to go on</source>
        <translation>Abajo (num. 2); mantenga para seguir</translation>
    </message>
    <message>
        <source>Pan left (keypad 4); hold to go on</source>
        <translation>Izquierda (num. 4); mantenga para seguir</translation>
    </message>
    <message>
        <source>Pan right (keypad 6); hold to go on</source>
        <translation>Derecha (num. 6); mantenga para seguir</translation>
    </message>
    <message>
        <source>Pan up (keypad 8); hold to go on</source>
        <translation>Arriba (num. 8); mantenga para seguir</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Parallelogram</source>
        <translation>Paralelogramo</translation>
    </message>
    <message>
        <source>Parallelogram, 10 of 10</source>
        <translation>Paralelogramo, 10 de 10</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Pasivo</translation>
    </message>
    <message>
        <source>Passive goes through most routers</source>
        <translation>El pasivo atraviesa la mayoría de routers</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Past Injuries</source>
        <translation>Lesiones previas</translation>
    </message>
    <message>
        <source>Path Trace</source>
        <translation>Trazar ruta</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Pause the locked videos</source>
        <translation>Pausar los vídeos bloqueados</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Phone #</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Physical Restrictions</source>
        <translation>Limitaciones físicas</translation>
    </message>
    <message>
        <source>Pick the videos by hand, cut off what is too much, and Kinalyx keeps them in the student's folder.</source>
        <translation>Elija los vídeos a mano, corte lo que sobra, y Kinalyx los guarda en la carpeta.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Picture %1 of %2</source>
        <translation>Imagen %1 de %2</translation>
    </message>
    <message>
        <source>Picture 0 of 0</source>
        <translation>Imagen 0 de 0</translation>
    </message>
    <message>
        <source>Picture Saved... You now have {} pictures queued for emailing.</source>
        <translation>Imagen guardada... Ya hay {} imágenes en cola para enviar.</translation>
    </message>
    <message>
        <source>Picture {}.jpg</source>
        <translation>Imagen {}.jpg</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Pictures and details</source>
        <translation>Imágenes y detalles</translation>
    </message>
    <message>
        <source>Pictures and details of the videos, or names alone</source>
        <translation>Imágenes y detalles de los vídeos, o solo nombres</translation>
    </message>
    <message>
        <source>Pictures of the video over its bar</source>
        <translation>Imágenes del vídeo sobre su barra</translation>
    </message>
    <message>
        <source>Pictures per second of the scene; leave it empty for the video's own</source>
        <translation>Imágenes por segundo de la escena; déjelo vacío para la del propio vídeo</translation>
    </message>
    <message>
        <source>Pictures saved Successfully!</source>
        <translation>¡Imágenes guardadas!</translation>
    </message>
    <message>
        <source>Pictures side by side (1 to 4)</source>
        <translation>Imágenes lado a lado (1 a 4)</translation>
    </message>
    <message>
        <source>Pictures that come raw are compressed as the video is saved</source>
        <translation>Las imágenes que llegan sin comprimir se comprimen al guardar el vídeo</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play / Pause (Space or P)</source>
        <translation>Reproducir / Pausa (Espacio o P)</translation>
    </message>
    <message>
        <source>Play / Pause All Videos</source>
        <translation>Reproducir / pausar todos</translation>
    </message>
    <message>
        <source>Play Backward</source>
        <translation>Reproducir hacia atrás</translation>
    </message>
    <message>
        <source>Play From Here</source>
        <translation>Reproducir desde aquí</translation>
    </message>
    <message>
        <source>Play It</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play Up To Here</source>
        <translation>Reproducir hasta aquí</translation>
    </message>
    <message>
        <source>Play Whole Video</source>
        <translation>Reproducir todo</translation>
    </message>
    <message>
        <source>Play all of them with Windows Media Player</source>
        <translation>Reproducir todo con Windows Media Player</translation>
    </message>
    <message>
        <source>Play or pause (P)</source>
        <translation>Reproducir o pausar (P)</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>Reproducir o pausar (Espacio)</translation>
    </message>
    <message>
        <source>Play or pause video %1</source>
        <translation>Reproducir o pausar el vídeo %1</translation>
    </message>
    <message>
        <source>Play per Month</source>
        <translation>Partidos al mes</translation>
    </message>
    <message>
        <source>Play the locked videos again and again</source>
        <translation>Repetir los vídeos bloqueados</translation>
    </message>
    <message>
        <source>Play the locked videos together</source>
        <translation>Reproducir juntos los vídeos bloqueados</translation>
    </message>
    <message>
        <source>Play the part that is marked (Space)</source>
        <translation>Reproducir la parte marcada (Espacio)</translation>
    </message>
    <message>
        <source>Play what is kept (Space)</source>
        <translation>Reproducir lo que queda (Espacio)</translation>
    </message>
    <message>
        <source>Play what the clip will show</source>
        <translation>Reproducir lo que mostrará el clip</translation>
    </message>
    <message>
        <source>Please enter the name of this macro</source>
        <translation>Escriba el nombre de esta macro</translation>
    </message>
    <message>
        <source>Please wait until the operation under way has finished.</source>
        <translation>Espere a que termine la operación en curso.</translation>
    </message>
    <message>
        <source>Plus Sign</source>
        <translation>Signo más</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Posición en el vídeo</translation>
    </message>
    <message>
        <source>Positions of the locked videos</source>
        <translation>Posiciones de los vídeos bloqueados</translation>
    </message>
    <message>
        <source>Practice per Month</source>
        <translation>Práctica al mes</translation>
    </message>
    <message>
        <source>Preparing email</source>
        <translation>Preparando el correo</translation>
    </message>
    <message>
        <source>Preparing to Capture</source>
        <translation>Preparando la grabación</translation>
    </message>
    <message>
        <source>Preparing to Record....</source>
        <translation>Preparando la grabación....</translation>
    </message>
    <message>
        <source>Preparing to Record.... without a voice</source>
        <translation>Preparando la grabación.... sin voz</translation>
    </message>
    <message>
        <source>Press "Start Sound Capture" to start monitoring for sound.</source>
        <translation>Pulse "Grabar por sonido" para vigilar el sonido.</translation>
    </message>
    <message>
        <source>Press "Start to Monitor" to start monitoring.</source>
        <translation>Pulse "Vigilar" para iniciar la vigilancia.</translation>
    </message>
    <message>
        <source>Preview and Print...</source>
        <translation>Vista previa e imprimir...</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Imagen anterior</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print All Windows</source>
        <translation>Imprimir todas las ventanas</translation>
    </message>
    <message>
        <source>Print Bunker Shot</source>
        <translation>Imprimir búnker</translation>
    </message>
    <message>
        <source>Print Chip Shot</source>
        <translation>Imprimir chip</translation>
    </message>
    <message>
        <source>Print Distance Wedge</source>
        <translation>Imprimir wedge</translation>
    </message>
    <message>
        <source>Print Done</source>
        <translation>Impreso</translation>
    </message>
    <message>
        <source>Print Highlighted Window</source>
        <translation>Imprimir ventana marcada</translation>
    </message>
    <message>
        <source>Print Preview - %1</source>
        <translation>Vista previa - %1</translation>
    </message>
    <message>
        <source>Print Putting</source>
        <translation>Imprimir putt</translation>
    </message>
    <message>
        <source>Print Video(s)</source>
        <translation>Imprimir vídeo(s)</translation>
    </message>
    <message>
        <source>Print Window with Notes</source>
        <translation>Imprimir ventana con notas</translation>
    </message>
    <message>
        <source>Print the logo on printouts</source>
        <translation>Imprimir el logotipo</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>Imprimiendo...</translation>
    </message>
    <message>
        <source>Prints the notes alone</source>
        <translation>Imprime solo las notas</translation>
    </message>
    <message>
        <source>Processes complete</source>
        <translation>Procesos completos</translation>
    </message>
    <message>
        <source>Processing Video...</source>
        <translation>Procesando vídeo...</translation>
    </message>
    <message>
        <source>Processor Speed</source>
        <translation>Velocidad de CPU</translation>
    </message>
    <message>
        <source>Profile Fields</source>
        <translation>Campos del perfil</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Program Setup</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Put the tool down</source>
        <translation>Dejar la herramienta</translation>
    </message>
    <message>
        <source>Put the window away</source>
        <translation>Minimizar la ventana</translation>
    </message>
    <message>
        <source>Quad</source>
        <translation>Cuatro</translation>
    </message>
    <message>
        <source>Quad Screen</source>
        <translation>Cuatro ventanas</translation>
    </message>
    <message>
        <source>Quick Launch</source>
        <translation>Acceso rápido</translation>
    </message>
    <message>
        <source>Quick Launch +</source>
        <translation>Acceso rápido +</translation>
    </message>
    <message>
        <source>Quick Launch -</source>
        <translation>Acceso rápido -</translation>
    </message>
    <message>
        <source>Quick Launch keeps videos, no {}.</source>
        <translation>Acceso rápido guarda vídeos, no {}.</translation>
    </message>
    <message>
        <source>R - Rewind Video</source>
        <translation>R - Al principio</translation>
    </message>
    <message>
        <source>R/L Handed</source>
        <translation>Diestro/zurdo</translation>
    </message>
    <message>
        <source>Random colors, one after the other</source>
        <translation>Colores al azar, uno tras otro</translation>
    </message>
    <message>
        <source>Reading from specified Removeable disk. Please Wait....</source>
        <translation>Leyendo el disco extraíble. Espere....</translation>
    </message>
    <message>
        <source>Reads</source>
        <translation>Lee</translation>
    </message>
    <message>
        <source>Reads the disc back and compares it</source>
        <translation>Lee el disco y lo compara</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Ready to Burn CD?</source>
        <translation>¿Listo para grabar el CD?</translation>
    </message>
    <message>
        <source>Ready to Record Lesson</source>
        <translation>Listo para grabar la lección</translation>
    </message>
    <message>
        <source>Ready to Record Video</source>
        <translation>Listo para grabar vídeo</translation>
    </message>
    <message>
        <source>Recompress</source>
        <translation>Recomprimir</translation>
    </message>
    <message>
        <source>Record Lesson</source>
        <translation>Grabar lección</translation>
    </message>
    <message>
        <source>Record Voice</source>
        <translation>Grabar voz</translation>
    </message>
    <message>
        <source>Recording Complete!</source>
        <translation>¡Grabación completa!</translation>
    </message>
    <message>
        <source>Recording Complete....</source>
        <translation>Grabación completa....</translation>
    </message>
    <message>
        <source>Recording Paused</source>
        <translation>Grabación en pausa</translation>
    </message>
    <message>
        <source>Recording Sound and Video</source>
        <translation>Grabando sonido y vídeo</translation>
    </message>
    <message>
        <source>Recording cancelled...</source>
        <translation>Grabación cancelada...</translation>
    </message>
    <message>
        <source>Recording....</source>
        <translation>Grabando....</translation>
    </message>
    <message>
        <source>Recording.... without a voice</source>
        <translation>Grabando.... sin voz</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Redo (Ctrl+Shift+Z)</source>
        <translation>Rehacer (Ctrl+Mayús+Z)</translation>
    </message>
    <message>
        <source>Redock the Play Bar</source>
        <translation>Fijar la barra</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Remembers %1 of %2 s, %3 of %4 MiB</source>
        <translation>Recuerda %1 de %2 s, %3 de %4 MiB</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove All Zones</source>
        <translation>Quitar todas las zonas</translation>
    </message>
    <message>
        <source>Remove Mark</source>
        <translation>Quitar marca</translation>
    </message>
    <message>
        <source>Remove Zone	Del</source>
        <translation>Quitar zona	Supr</translation>
    </message>
    <message>
        <source>Remove macro</source>
        <translation>Quitar macro</translation>
    </message>
    <message>
        <source>Remove the macro "{}"?</source>
        <translation>¿Quitar la macro "{}"?</translation>
    </message>
    <message>
        <source>Removes the macro from the list</source>
        <translation>Quita la macro de la lista</translation>
    </message>
    <message>
        <source>Removing video from program!</source>
        <translation>¡Quitando vídeo del programa!</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Rename Instructor or Database</source>
        <translation>Renombrar monitor o base de datos</translation>
    </message>
    <message>
        <source>Rename Video</source>
        <translation>Renombrar vídeo</translation>
    </message>
    <message>
        <source>Rename cancelled.</source>
        <translation>Cambio de nombre cancelado.</translation>
    </message>
    <message>
        <source>Rename the current instructor or database</source>
        <translation>Renombrar el monitor o base de datos actual</translation>
    </message>
    <message>
        <source>Rename the current video.</source>
        <translation>Renombrar el vídeo actual.</translation>
    </message>
    <message>
        <source>Rename the current {}.</source>
        <translation>Renombrar {}.</translation>
    </message>
    <message>
        <source>Rename {}</source>
        <translation>Renombrar {}</translation>
    </message>
    <message>
        <source>Reopen (Ctrl+Shift+T)</source>
        <translation>Reabrir (Ctrl+Mayús+T)</translation>
    </message>
    <message>
        <source>Reopen Closed Videos</source>
        <translation>Reabrir vídeos cerrados</translation>
    </message>
    <message>
        <source>Reopen closed videos</source>
        <translation>Reabrir vídeos cerrados</translation>
    </message>
    <message>
        <source>Report - %1</source>
        <translation>Informe - %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Reset to Default?</source>
        <translation>¿Restaurar?</translation>
    </message>
    <message>
        <source>Retry Connection</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Reverse Field Order</source>
        <translation>Invertir orden de campos</translation>
    </message>
    <message>
        <source>Reverse fields</source>
        <translation>Invertir campos</translation>
    </message>
    <message>
        <source>Rewind (Up Arrow)</source>
        <translation>Al principio (flecha arriba)</translation>
    </message>
    <message>
        <source>Rewind All Videos</source>
        <translation>Todos al principio</translation>
    </message>
    <message>
        <source>Rewind the locked videos</source>
        <translation>Rebobinar los vídeos bloqueados</translation>
    </message>
    <message>
        <source>Rewind video %1</source>
        <translation>Rebobinar el vídeo %1</translation>
    </message>
    <message>
        <source>Right Arrow</source>
        <translation>Flecha dcha.</translation>
    </message>
    <message>
        <source>Right Arrow - Next Frame</source>
        <translation>Flecha dcha. - Fotograma siguiente</translation>
    </message>
    <message>
        <source>Right arrow</source>
        <translation>Flecha derecha</translation>
    </message>
    <message>
        <source>Right arrow key</source>
        <translation>Flecha derecha</translation>
    </message>
    <message>
        <source>Row of pictures</source>
        <translation>Fila de imágenes</translation>
    </message>
    <message>
        <source>Ruby Red</source>
        <translation>Rojo rubí</translation>
    </message>
    <message>
        <source>Run System Test</source>
        <translation>Probar el sistema</translation>
    </message>
    <message>
        <source>Run video %1 in a loop</source>
        <translation>Repetir el vídeo %1</translation>
    </message>
    <message>
        <source>S - Speed Toggle</source>
        <translation>S - Velocidad</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save %1 Videos</source>
        <translation>Guardar %1 vídeos</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>Save Bitmap</source>
        <translation>Guardar mapa de bits</translation>
    </message>
    <message>
        <source>Save Bunker Shot Bmps</source>
        <translation>Guardar imágenes de búnker</translation>
    </message>
    <message>
        <source>Save Capture</source>
        <translation>Guardar grabación</translation>
    </message>
    <message>
        <source>Save Chip Shot Bmps</source>
        <translation>Guardar imágenes de chip</translation>
    </message>
    <message>
        <source>Save Distance Wedge Bmps</source>
        <translation>Guardar imágenes de wedge</translation>
    </message>
    <message>
        <source>Save Drawing Macro</source>
        <translation>Guardar macro</translation>
    </message>
    <message>
        <source>Save Drawings and Notes</source>
        <translation>Guardar dibujos y notas</translation>
    </message>
    <message>
        <source>Save It</source>
        <translation>Guardarla</translation>
    </message>
    <message>
        <source>Save Lesson</source>
        <translation>Guardar lección</translation>
    </message>
    <message>
        <source>Save Notes</source>
        <translation>Guardar notas</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>Save Picture...</source>
        <translation>Guardar imagen...</translation>
    </message>
    <message>
        <source>Save Putting Bmps</source>
        <translation>Guardar imágenes de putt</translation>
    </message>
    <message>
        <source>Save Video</source>
        <translation>Guardar vídeo</translation>
    </message>
    <message>
        <source>Save Video with Drawings</source>
        <translation>Guardar vídeo con dibujos</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Guardar como PDF...</translation>
    </message>
    <message>
        <source>Save or cancel the trim first, then add videos.</source>
        <translation>Guarde o cancele primero el recorte; luego añada vídeos.</translation>
    </message>
    <message>
        <source>Save writes over the video itself: the frames outside cannot be brought back. An MP4 or MOV may keep a few of them in the file, hidden, because others are built on them.</source>
        <translation>Guardar escribe sobre el propio vídeo: los fotogramas de fuera no se recuperan. Un MP4 o MOV puede conservar algunos ocultos en el archivo, porque otros dependen de ellos.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Saved: all {} videos</source>
        <translation>Guardado: los {} vídeos</translation>
    </message>
    <message>
        <source>Saved: {}</source>
        <translation>Guardado: {}</translation>
    </message>
    <message>
        <source>Saves the recording and opens it in the analysis section (Return)</source>
        <translation>Guarda la grabación y la abre en el análisis (Intro)</translation>
    </message>
    <message>
        <source>Saving "%1", %2 %</source>
        <translation>Guardando "%1", %2 %</translation>
    </message>
    <message>
        <source>Saving "%1", %2 %; %3 others wait</source>
        <translation>Guardando "%1", %2 %; otros %3 esperan</translation>
    </message>
    <message>
        <source>Saving "%1", %2 %; another one waits</source>
        <translation>Guardando "%1", %2 %; otro espera</translation>
    </message>
    <message>
        <source>Saving Video</source>
        <translation>Guardando vídeo</translation>
    </message>
    <message>
        <source>Saving Video.... Please Wait.</source>
        <translation>Guardando vídeo.... Espere.</translation>
    </message>
    <message>
        <source>Saving cancelled. Click Save Video to continue..</source>
        <translation>Guardado cancelado. Pulse Guardar vídeo para seguir..</translation>
    </message>
    <message>
        <source>Screen Mode</source>
        <translation>Modo de pantalla</translation>
    </message>
    <message>
        <source>Seconds to capture</source>
        <translation>Segundos de grabación</translation>
    </message>
    <message>
        <source>Seconds to wait</source>
        <translation>Segundos de espera</translation>
    </message>
    <message>
        <source>Seen When</source>
        <translation>Cuándo se ve</translation>
    </message>
    <message>
        <source>Seen at its first mark, or at the mark that has the name of the present one</source>
        <translation>Visto en su primera marca, o en la que se llama como la presente</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Elegir todo</translation>
    </message>
    <message>
        <source>Select Default Capture Method</source>
        <translation>Método de grabación habitual</translation>
    </message>
    <message>
        <source>Select a %1 to see the lessons.</source>
        <translation>Elija %1 para ver las lecciones.</translation>
    </message>
    <message>
        <source>Select a drive or folder for your videos.</source>
        <translation>Seleccione una unidad o carpeta para sus vídeos.</translation>
    </message>
    <message>
        <source>Select a window first</source>
        <translation>Elija primero una ventana</translation>
    </message>
    <message>
        <source>Select an Instructor or Database</source>
        <translation>Elija monitor o base de datos</translation>
    </message>
    <message>
        <source>Select an instructor, a %1 and the videos on one side, then choose Export or Import. Each video takes its drawings and notes along, and a %1 who is new on the other side brings the profile. Videos from a plain folder, shown under General Folder, come to the %1 chosen in this library.</source>
        <translation>Elija en un lado monitor, %1 y vídeos, y luego Exportar o Importar. Cada vídeo lleva sus dibujos y notas, y quien es nuevo en el otro lado (%1) trae el perfil. Los vídeos de una carpeta simple, mostrados en Carpeta general, van a lo elegido en esta videoteca (%1).</translation>
    </message>
    <message>
        <source>Select the %1 name. This will allow the program to automatically add the %1 email address.</source>
        <translation>Elija el nombre (%1). Así el programa añade solo el correo (%1).</translation>
    </message>
    <message>
        <source>Select the %1 who is to get the videos first.</source>
        <translation>Elija primero quién recibe los vídeos (%1).</translation>
    </message>
    <message>
        <source>Select the Database and the {} that you want to move the video to and click the "Move" button.</source>
        <translation>Elija la base de datos y {} de destino del vídeo, y pulse el botón "Mover".</translation>
    </message>
    <message>
        <source>Select the Database and the {} that you want to move the videos to and click the "Move" button.</source>
        <translation>Elija la base de datos y {} de destino de los vídeos, y pulse el botón "Mover".</translation>
    </message>
    <message>
        <source>Select the Database from the list on the left that you want to move the selected {} to and click the "Move" button.</source>
        <translation>Elija en la lista de la izquierda la base de datos de destino ({}) y pulse el botón "Mover".</translation>
    </message>
    <message>
        <source>Select the path to store your videos.</source>
        <translation>Seleccione la carpeta para guardar sus vídeos.</translation>
    </message>
    <message>
        <source>Select the {} who is to get the videos first.</source>
        <translation>Elija primero quién recibe los vídeos ({}).</translation>
    </message>
    <message>
        <source>Select this %1</source>
        <translation>Elegir %1</translation>
    </message>
    <message>
        <source>Select your Video Camera folder</source>
        <translation>Seleccione la carpeta de su videocámara</translation>
    </message>
    <message>
        <source>Select {}</source>
        <translation>Elegir {}</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Selected video successfully moved.</source>
        <translation>Se movió el vídeo elegido.</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Send Email with Lessons and Videos</source>
        <translation>Enviar correo con lecciones y vídeos</translation>
    </message>
    <message>
        <source>Send Email(s)</source>
        <translation>Enviar correo(s)</translation>
    </message>
    <message>
        <source>Send Lesson</source>
        <translation>Enviar lección</translation>
    </message>
    <message>
        <source>Send Pictures to %1</source>
        <translation>Enviar imágenes a %1</translation>
    </message>
    <message>
        <source>Send Successful!</source>
        <translation>¡Enviado!</translation>
    </message>
    <message>
        <source>Send Successful!
{}</source>
        <translation>¡Enviado!
{}</translation>
    </message>
    <message>
        <source>Send Videos to Email Addresses</source>
        <translation>Enviar vídeos a direcciones de correo</translation>
    </message>
    <message>
        <source>Send Videos to Web Server</source>
        <translation>Enviar vídeos al servidor web</translation>
    </message>
    <message>
        <source>Send a Test Mail</source>
        <translation>Enviar una prueba</translation>
    </message>
    <message>
        <source>Send current video to the analysis section.</source>
        <translation>Enviar este vídeo al análisis.</translation>
    </message>
    <message>
        <source>Send the {} selected videos to the analysis section.</source>
        <translation>Enviar los {} vídeos elegidos al análisis.</translation>
    </message>
    <message>
        <source>Send to Analysis</source>
        <translation>Enviar a análisis</translation>
    </message>
    <message>
        <source>Send to Web</source>
        <translation>Enviar a la web</translation>
    </message>
    <message>
        <source>Sending current video to Analysis...</source>
        <translation>Enviando el vídeo al análisis...</translation>
    </message>
    <message>
        <source>Sending email now....Please wait</source>
        <translation>Enviando el correo....Espere</translation>
    </message>
    <message>
        <source>Sending email...</source>
        <translation>Enviando el correo...</translation>
    </message>
    <message>
        <source>Sending last saved to Analysis...</source>
        <translation>Enviando el último vídeo al análisis...</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>Sensibilidad</translation>
    </message>
    <message>
        <source>Sensitivity of the hot zones</source>
        <translation>Sensibilidad de las zonas</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>Sequence of Frames every</source>
        <translation>Secuencia cada</translation>
    </message>
    <message>
        <source>Server for model videos</source>
        <translation>Servidor de vídeos de modelos</translation>
    </message>
    <message>
        <source>Server for updates</source>
        <translation>Servidor de actualizaciones</translation>
    </message>
    <message>
        <source>Set Automatic Import Folder</source>
        <translation>Fijar carpeta de importación</translation>
    </message>
    <message>
        <source>Set Camera Default Folder</source>
        <translation>Fijar carpeta de la cámara</translation>
    </message>
    <message>
        <source>Set End Point</source>
        <translation>Fijar final</translation>
    </message>
    <message>
        <source>Set Start Point</source>
        <translation>Fijar inicio</translation>
    </message>
    <message>
        <source>Set Zero Point</source>
        <translation>Fijar el cero</translation>
    </message>
    <message>
        <source>Set as Camera %1</source>
        <translation>Fijar cámara %1</translation>
    </message>
    <message>
        <source>Set the ruler for speeds along the path.</source>
        <translation>Fije la regla para ver velocidades.</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Shade Zone</source>
        <translation>Zona sombreada</translation>
    </message>
    <message>
        <source>Shaft &amp; path</source>
        <translation>Vara y ruta</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Enfocar</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Short term Goals</source>
        <translation>Metas cercanas</translation>
    </message>
    <message>
        <source>Short-game video names</source>
        <translation>Nombres de vídeos de juego corto</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Show Grid</source>
        <translation>Ver cuadrícula</translation>
    </message>
    <message>
        <source>Show Stats</source>
        <translation>Ver datos</translation>
    </message>
    <message>
        <source>Show Video &amp;Notes</source>
        <translation>Mostrar &amp;notas del vídeo</translation>
    </message>
    <message>
        <source>Show Video Notes</source>
        <translation>Mostrar notas del vídeo</translation>
    </message>
    <message>
        <source>Show Video Timer</source>
        <translation>Mostrar cronómetro</translation>
    </message>
    <message>
        <source>Show complete profile and notes.</source>
        <translation>Mostrar el perfil completo y las notas.</translation>
    </message>
    <message>
        <source>Show field by field</source>
        <translation>Mostrar campo a campo</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Ver en carpeta</translation>
    </message>
    <message>
        <source>Show lines in</source>
        <translation>Mostrar líneas en</translation>
    </message>
    <message>
        <source>Show the Report</source>
        <translation>Ver el informe</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Ver contraseña</translation>
    </message>
    <message>
        <source>Show video statistics.</source>
        <translation>Mostrar los datos del vídeo.</translation>
    </message>
    <message>
        <source>Showing</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Shown now, {}</source>
        <translation>Se ve ahora, {}</translation>
    </message>
    <message>
        <source>Shows the folder of these videos</source>
        <translation>Muestra la carpeta de estos vídeos</translation>
    </message>
    <message>
        <source>Shows the student as in a mirror, or as others see her; drawings and zones turn too (F)</source>
        <translation>Muestra como en un espejo, o como se ve desde fuera; los dibujos y zonas giran también (F)</translation>
    </message>
    <message>
        <source>Shows the two fields of interlaced pictures in the other order</source>
        <translation>Muestra los dos campos de imágenes entrelazadas en el otro orden</translation>
    </message>
    <message>
        <source>Sides cut off</source>
        <translation>Lados recortados</translation>
    </message>
    <message>
        <source>Silver Blue</source>
        <translation>Plata y azul</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Una</translation>
    </message>
    <message>
        <source>Single Screen</source>
        <translation>Una ventana</translation>
    </message>
    <message>
        <source>Six</source>
        <translation>Seis</translation>
    </message>
    <message>
        <source>Six Windows</source>
        <translation>Seis ventanas</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Size of the letters</source>
        <translation>Tamaño de las letras</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Tamaño de la imagen</translation>
    </message>
    <message>
        <source>Size of the piece</source>
        <translation>Tamaño del recorte</translation>
    </message>
    <message>
        <source>Slow Motion, Sound, Strobe and Grid</source>
        <translation>Cámara lenta, sonido, estrobo y cuadrícula</translation>
    </message>
    <message>
        <source>Slow motion (S)</source>
        <translation>Cámara lenta (S)</translation>
    </message>
    <message>
        <source>Slow motion of video %1</source>
        <translation>Cámara lenta del vídeo %1</translation>
    </message>
    <message>
        <source>Slow motion speed</source>
        <translation>Velocidad de cámara lenta</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>Software Version %1</source>
        <translation>Versión del programa %1</translation>
    </message>
    <message>
        <source>Some of the pictures could not be deleted.</source>
        <translation>No se pudieron eliminar algunas imágenes.</translation>
    </message>
    <message>
        <source>Somebody else has renamed, moved or deleted the video "{}". Its drawings and notes are kept in {}.</source>
        <translation>Alguien ha renombrado, movido o eliminado el vídeo "{}". Sus dibujos y notas se guardan en {}.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Sound Level Reached... Finishing Video Capture</source>
        <translation>Nivel de sonido alcanzado... Terminando la grabación</translation>
    </message>
    <message>
        <source>Sound at full speed: %1 %</source>
        <translation>Sonido a velocidad normal: %1 %</translation>
    </message>
    <message>
        <source>Sound is off</source>
        <translation>El sonido está apagado</translation>
    </message>
    <message>
        <source>Sound of the video</source>
        <translation>Sonido del vídeo</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Space on CD</source>
        <translation>Espacio en el CD</translation>
    </message>
    <message>
        <source>Speak while it plays.</source>
        <translation>Hable mientras se reproduce.</translation>
    </message>
    <message>
        <source>Speak while the clip plays: your voice goes into it in place of its sound</source>
        <translation>Hable mientras suena el clip: su voz entra en lugar de su sonido</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Speed ([ and ]); the wheel turns it</source>
        <translation>Velocidad ([ y ]); la rueda la cambia</translation>
    </message>
    <message>
        <source>Speed of the common play</source>
        <translation>Velocidad de la reproducción conjunta</translation>
    </message>
    <message>
        <source>Speed of the loop (S)</source>
        <translation>Velocidad del bucle (S)</translation>
    </message>
    <message>
        <source>Speeds at {:.4g} pictures a second. Slow motion? Setup, True Frame Rate...</source>
        <translation>Velocidades a {:.4g} imágenes por segundo. ¿Cámara lenta? Ajustes, Frecuencia real...</translation>
    </message>
    <message>
        <source>Speeds beside paths</source>
        <translation>Velocidad junto a rutas</translation>
    </message>
    <message>
        <source>Split Screen</source>
        <translation>Pantalla dividida</translation>
    </message>
    <message>
        <source>Split Video Fields</source>
        <translation>Separar campos</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>Squares across the picture</source>
        <translation>Cuadros a lo ancho de la imagen</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Escenario</translation>
    </message>
    <message>
        <source>Stand at drawings</source>
        <translation>Parar en dibujos</translation>
    </message>
    <message>
        <source>Stand still (Space); Left and Right step</source>
        <translation>Detener (Espacio); flechas izda. y dcha. avanzan</translation>
    </message>
    <message>
        <source>Standard Values</source>
        <translation>Valores iniciales</translation>
    </message>
    <message>
        <source>Standard of the cameras</source>
        <translation>Norma de las cámaras</translation>
    </message>
    <message>
        <source>Start Auto Import</source>
        <translation>Iniciar importación</translation>
    </message>
    <message>
        <source>Start Beep Capture</source>
        <translation>Iniciar cuenta atrás</translation>
    </message>
    <message>
        <source>Start Capture</source>
        <translation>Iniciar grabación</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>Empieza aquí</translation>
    </message>
    <message>
        <source>Start Recording</source>
        <translation>Iniciar grabación</translation>
    </message>
    <message>
        <source>Start Sound Capture</source>
        <translation>Grabar por sonido</translation>
    </message>
    <message>
        <source>Start Writing to CD?</source>
        <translation>¿Empezar a escribir en el CD?</translation>
    </message>
    <message>
        <source>Start at %1</source>
        <translation>Empieza en %1</translation>
    </message>
    <message>
        <source>Start at %1   End at %2   %3 of %4 frames</source>
        <translation>Empieza en %1   Acaba en %2   %3 de %4 fotogramas</translation>
    </message>
    <message>
        <source>Start at {}</source>
        <translation>Empieza en {}</translation>
    </message>
    <message>
        <source>Start time %1</source>
        <translation>Inicio en %1</translation>
    </message>
    <message>
        <source>Start to Monitor</source>
        <translation>Vigilar</translation>
    </message>
    <message>
        <source>Start-Stop</source>
        <translation>Inicio-Fin</translation>
    </message>
    <message>
        <source>Starting the camera...</source>
        <translation>Iniciando la cámara...</translation>
    </message>
    <message>
        <source>Starting to burn CD</source>
        <translation>Empezando a grabar el CD</translation>
    </message>
    <message>
        <source>Stats Off</source>
        <translation>Sin datos</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Step 1) Convert videos for email.</source>
        <translation>Paso 1) Convertir vídeos para el correo.</translation>
    </message>
    <message>
        <source>Step 1) Convert videos for the web.</source>
        <translation>Paso 1) Convertir vídeos para la web.</translation>
    </message>
    <message>
        <source>Step 2) Prepare to send.</source>
        <translation>Paso 2) Preparar el envío.</translation>
    </message>
    <message>
        <source>Step 2) Upload videos to the web.</source>
        <translation>Paso 2) Subir vídeos a la web.</translation>
    </message>
    <message>
        <source>Step 3) Create and Send email(s).</source>
        <translation>Paso 3) Crear y enviar correo(s).</translation>
    </message>
    <message>
        <source>Step Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Stick man</source>
        <translation>Monigote</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Stop Auto Import</source>
        <translation>Parar importación</translation>
    </message>
    <message>
        <source>Stop Beep Capture</source>
        <translation>Parar cuenta atrás</translation>
    </message>
    <message>
        <source>Stop Capture</source>
        <translation>Parar grabación</translation>
    </message>
    <message>
        <source>Stop Monitoring</source>
        <translation>Parar vigilancia</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Detener grabación</translation>
    </message>
    <message>
        <source>Stop Sound Capture</source>
        <translation>Parar por sonido</translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation>No esperar más</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Stored by</source>
        <translation>Guardado por</translation>
    </message>
    <message>
        <source>Strengths</source>
        <translation>Puntos fuertes</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>Estrobo</translation>
    </message>
    <message>
        <source>Strobe Frames</source>
        <translation>Estroboscopio</translation>
    </message>
    <message>
        <source>Strobe Video</source>
        <translation>Estroboscopio</translation>
    </message>
    <message>
        <source>Strobe a video first</source>
        <translation>Haga primero un estrobo</translation>
    </message>
    <message>
        <source>Student</source>
        <translation>Alumno</translation>
    </message>
    <message>
        <source>Student Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Student Profiles - Home key</source>
        <translation>Inicio - Perfiles</translation>
    </message>
    <message>
        <source>Students</source>
        <translation>Alumnos</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Asunto</translation>
    </message>
    <message>
        <source>Subject of your mails</source>
        <translation>Asunto de sus correos</translation>
    </message>
    <message>
        <source>Swap the two fields</source>
        <translation>Intercambiar los dos campos</translation>
    </message>
    <message>
        <source>Swing path</source>
        <translation>Ruta del swing</translation>
    </message>
    <message>
        <source>System Ram</source>
        <translation>Memoria RAM</translation>
    </message>
    <message>
        <source>System Test</source>
        <translation>Prueba del sistema</translation>
    </message>
    <message>
        <source>Take all of the video again</source>
        <translation>Tomar de nuevo todo el vídeo</translation>
    </message>
    <message>
        <source>Take all videos of all %1 of the current database</source>
        <translation>Tomar todos los vídeos (%1) de la base de datos actual</translation>
    </message>
    <message>
        <source>Take this name (Return)</source>
        <translation>Tomar este nombre (Intro)</translation>
    </message>
    <message>
        <source>Take up a drawing tool, or click a drawing, to choose its color</source>
        <translation>Tome una herramienta, o haga clic en un dibujo, para elegir su color</translation>
    </message>
    <message>
        <source>Takes a picture that was added off the list</source>
        <translation>Quita de la lista una imagen añadida</translation>
    </message>
    <message>
        <source>Takes figures and the numbers of zones off the picture</source>
        <translation>Quita cifras y números de zonas de la imagen</translation>
    </message>
    <message>
        <source>Takes the chosen files out of this list (Delete). The files themselves stay.</source>
        <translation>Quita los archivos elegidos de esta lista (Supr). Los archivos siguen donde están.</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Verde azulado</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Telephone http://192.168.0.20:8080/video</source>
        <translation>Teléfono http://192.168.0.20:8080/video</translation>
    </message>
    <message>
        <source>Tell that server that Kinalyx is used</source>
        <translation>Decir a ese servidor que se usa Kinalyx</translation>
    </message>
    <message>
        <source>Test Connection</source>
        <translation>Probar conexión</translation>
    </message>
    <message>
        <source>Test Drive</source>
        <translation>Probar unidad</translation>
    </message>
    <message>
        <source>Test Send Successful! A test email has been sent to {}.</source>
        <translation>¡Prueba correcta! Se envió un correo de prueba a {}.</translation>
    </message>
    <message>
        <source>Test Video Display rate</source>
        <translation>Probar frecuencia de pantalla</translation>
    </message>
    <message>
        <source>Testing Kinalyx Email</source>
        <translation>Prueba de correo de Kinalyx</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text Files, words alone (*.txt)|*.txt|Web Pages, with bold, italic and sizes (*.html)|*.html</source>
        <translation>Archivos de texto, solo palabras (*.txt)|*.txt|Páginas web, con negrita, cursiva y tamaños (*.html)|*.html</translation>
    </message>
    <message>
        <source>Text in the name</source>
        <translation>Texto en el nombre</translation>
    </message>
    <message>
        <source>That name is not a file's.</source>
        <translation>Ese nombre no es de un archivo.</translation>
    </message>
    <message>
        <source>The Database that you have chosen already contains a {} with the same name.</source>
        <translation>La base de datos elegida ya contiene ese nombre ({}).</translation>
    </message>
    <message>
        <source>The Import Folder cannot be reached.... Waiting for it....</source>
        <translation>No se llega a la carpeta de importación.... Esperándola....</translation>
    </message>
    <message>
        <source>The address could not be stored.</source>
        <translation>No se pudo guardar la dirección.</translation>
    </message>
    <message>
        <source>The address must begin with ftp://, ftps://, ftpes:// or sftp://.</source>
        <translation>La dirección debe empezar por ftp://, ftps://, ftpes:// o sftp://.</translation>
    </message>
    <message>
        <source>The address of the server holds a blank.</source>
        <translation>La dirección del servidor contiene un espacio.</translation>
    </message>
    <message>
        <source>The address of the server is empty.</source>
        <translation>La dirección del servidor está vacía.</translation>
    </message>
    <message>
        <source>The addresses in the profile</source>
        <translation>Las direcciones del perfil</translation>
    </message>
    <message>
        <source>The camera cannot be opened.</source>
        <translation>No se puede abrir la cámara.</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>La cámara no responde.</translation>
    </message>
    <message>
        <source>The camera gave no picture then.</source>
        <translation>Entonces la cámara no dio imagen.</translation>
    </message>
    <message>
        <source>The camera gave no picture.</source>
        <translation>La cámara no dio imagen.</translation>
    </message>
    <message>
        <source>The camera gave no picture. Nothing was recorded.</source>
        <translation>La cámara no dio imagen. No se grabó nada.</translation>
    </message>
    <message>
        <source>The camera gives no picture.</source>
        <translation>La cámara no da imagen.</translation>
    </message>
    <message>
        <source>The camera gives nothing any more.</source>
        <translation>La cámara ya no da nada.</translation>
    </message>
    <message>
        <source>The camera gives nothing any more. Is it still plugged in?</source>
        <translation>La cámara ya no da nada. ¿Sigue conectada?</translation>
    </message>
    <message>
        <source>The camera has changed the size of its pictures.</source>
        <translation>La cámara ha cambiado el tamaño de sus imágenes.</translation>
    </message>
    <message>
        <source>The camera has ended.</source>
        <translation>La cámara ha terminado.</translation>
    </message>
    <message>
        <source>The camera has no controls.</source>
        <translation>La cámara no tiene controles.</translation>
    </message>
    <message>
        <source>The camera has no such control.</source>
        <translation>La cámara no tiene ese control.</translation>
    </message>
    <message>
        <source>The camera has no such value.</source>
        <translation>La cámara no tiene ese valor.</translation>
    </message>
    <message>
        <source>The camera has stopped: {}</source>
        <translation>La cámara se ha detenido: {}</translation>
    </message>
    <message>
        <source>The camera has this control in hand itself.</source>
        <translation>La cámara maneja este control ella misma.</translation>
    </message>
    <message>
        <source>The camera is not there any more.</source>
        <translation>La cámara ya no está.</translation>
    </message>
    <message>
        <source>The camera is on the page Capture Videos. Leave that page, and it shows here again.</source>
        <translation>La cámara está en la página Grabar vídeos. Salga de ella y se verá aquí de nuevo.</translation>
    </message>
    <message>
        <source>The camera may not be used: it wants a password.</source>
        <translation>La cámara no se puede usar: pide contraseña.</translation>
    </message>
    <message>
        <source>The cameras are busy with another recording.</source>
        <translation>Las cámaras están ocupadas con otra grabación.</translation>
    </message>
    <message>
        <source>The capture page has the camera. The mirror goes on when that page is left.</source>
        <translation>La página de grabación tiene la cámara. El espejo sigue al salir de esa página.</translation>
    </message>
    <message>
        <source>The certificate with which "{}" proves who it is {}. Somebody else may be in between, so nothing was sent, and no password.</source>
        <translation>El certificado con el que "{}" prueba quién es {}. Puede haber alguien en medio, así que no se envió nada, ni la contraseña.</translation>
    </message>
    <message>
        <source>The certificates by which the {} "{}" is checked cannot be read.</source>
        <translation>No se pueden leer los certificados con los que se comprueba el {} "{}".</translation>
    </message>
    <message>
        <source>The clip could not be opened.</source>
        <translation>No se pudo abrir el clip.</translation>
    </message>
    <message>
        <source>The clip is another one now: record your voice again.</source>
        <translation>El clip ahora es otro: grabe su voz de nuevo.</translation>
    </message>
    <message>
        <source>The clip would replace its own video. Choose another name.</source>
        <translation>El clip reemplazaría su propio vídeo. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The connection to the {} "{}" broke off.</source>
        <translation>Se cortó la conexión con el {} "{}".</translation>
    </message>
    <message>
        <source>The current video has no marks</source>
        <translation>El vídeo actual no tiene marcas</translation>
    </message>
    <message>
        <source>The current video was copied to the Quick Launch folder.</source>
        <translation>El vídeo se copió a la carpeta de acceso rápido.</translation>
    </message>
    <message>
        <source>The current video was removed from the Quick Launch folder.</source>
        <translation>El vídeo se quitó de la carpeta de acceso rápido.</translation>
    </message>
    <message>
        <source>The current window</source>
        <translation>La ventana actual</translation>
    </message>
    <message>
        <source>The delayed mirror is shown</source>
        <translation>Se muestra el espejo con retardo</translation>
    </message>
    <message>
        <source>The disc could not be erased.</source>
        <translation>No se pudo borrar el disco.</translation>
    </message>
    <message>
        <source>The disc could not be erased.{}</source>
        <translation>No se pudo borrar el disco.{}</translation>
    </message>
    <message>
        <source>The disc could not be written.</source>
        <translation>No se pudo escribir el disco.</translation>
    </message>
    <message>
        <source>The disc has been written already and cannot be erased. Put in an empty one.</source>
        <translation>El disco ya está escrito y no se puede borrar. Ponga uno vacío.</translation>
    </message>
    <message>
        <source>The disc has been written, but it cannot be read back. Do not give it away.{}</source>
        <translation>El disco está escrito, pero no se puede leer. No lo entregue.{}</translation>
    </message>
    <message>
        <source>The disc has been written, but it differs from the files. Do not give it away.</source>
        <translation>El disco está escrito, pero difiere de los archivos. No lo entregue.</translation>
    </message>
    <message>
        <source>The disc has been written. It was not read back to the end.</source>
        <translation>El disco está escrito. No se leyó hasta el final.</translation>
    </message>
    <message>
        <source>The disc has too little room: {} MB of {} MB.</source>
        <translation>Falta espacio en el disco: {} MB de {} MB.</translation>
    </message>
    <message>
        <source>The disc holds something already.</source>
        <translation>El disco ya contiene algo.</translation>
    </message>
    <message>
        <source>The disc in the drive holds something already. Everything on it will be lost. Do you want to erase it?</source>
        <translation>El disco de la unidad ya contiene algo. Todo se perderá. ¿Desea borrarlo?</translation>
    </message>
    <message>
        <source>The disc libraries could not be started.</source>
        <translation>No se pudieron iniciar las bibliotecas de discos.</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <translation>El disco no responde.</translation>
    </message>
    <message>
        <source>The disk does not answer. The recording will be looked for at the next start.</source>
        <translation>El disco no responde. La grabación se buscará en el próximo inicio.</translation>
    </message>
    <message>
        <source>The disk does not keep it.</source>
        <translation>El disco no lo conserva.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>The disk of the library has no room for it.</source>
        <translation>El disco de la videoteca no tiene sitio para él.</translation>
    </message>
    <message>
        <source>The disk refuses to keep what you typed. It counts until Kinalyx closes, and is written with your next change.</source>
        <translation>El disco no quiere guardar lo que escribió. Vale hasta que Kinalyx se cierre, y se escribe con su próximo cambio.</translation>
    </message>
    <message>
        <source>The disk refuses to keep what you typed. It counts until Kinalyx closes.</source>
        <translation>El disco no quiere guardar lo que escribió. Vale hasta que Kinalyx se cierre.</translation>
    </message>
    <message>
        <source>The drawing is kept as a macro.</source>
        <translation>El dibujo se guarda como macro.</translation>
    </message>
    <message>
        <source>The drawing was laid on the video, and is kept as a macro.</source>
        <translation>El dibujo se puso sobre el vídeo y se guarda como macro.</translation>
    </message>
    <message>
        <source>The drawings and notes of "{}" could not be saved: {}. Would you like to try again?</source>
        <translation>No se pudieron guardar los dibujos y notas de "{}": {}. ¿Desea intentarlo de nuevo?</translation>
    </message>
    <message>
        <source>The drawings could not be kept as a macro. {}</source>
        <translation>No se pudieron guardar los dibujos como macro. {}</translation>
    </message>
    <message>
        <source>The drawings of this window are copied</source>
        <translation>Se copian los dibujos de esta ventana</translation>
    </message>
    <message>
        <source>The drive cannot write this disc.{}</source>
        <translation>La unidad no puede escribir este disco.{}</translation>
    </message>
    <message>
        <source>The drive cannot write this kind of disc.</source>
        <translation>La unidad no puede escribir esta clase de disco.</translation>
    </message>
    <message>
        <source>The drive could not be opened. Perhaps another program uses it or shows its disc: close that, and try again.</source>
        <translation>No se pudo abrir la unidad. Quizá la usa otro programa o muestra su disco: ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The drive did not keep what it was given.</source>
        <translation>La unidad no conservó lo que se le dio.</translation>
    </message>
    <message>
        <source>The drive does not answer.</source>
        <translation>La unidad no responde.</translation>
    </message>
    <message>
        <source>The drive does not answer. Choose another folder.</source>
        <translation>La unidad no responde. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The drive does not answer. It was left to itself.</source>
        <translation>La unidad no responde. Se la dejó sola.</translation>
    </message>
    <message>
        <source>The drive does not come to rest.</source>
        <translation>La unidad no llega a reposar.</translation>
    </message>
    <message>
        <source>The drive does not stop. It is left to itself.</source>
        <translation>La unidad no se detiene. Se la deja sola.</translation>
    </message>
    <message>
        <source>The drive has gone.</source>
        <translation>La unidad ya no está.</translation>
    </message>
    <message>
        <source>The drive is not answering.</source>
        <translation>La unidad no responde.</translation>
    </message>
    <message>
        <source>The drive of the library does not answer.</source>
        <translation>La unidad de la videoteca no responde.</translation>
    </message>
    <message>
        <source>The drive of the notes does not answer.</source>
        <translation>La unidad de las notas no responde.</translation>
    </message>
    <message>
        <source>The drive of the student's folder does not answer.</source>
        <translation>La unidad de la carpeta no responde.</translation>
    </message>
    <message>
        <source>The drive with "%1" does not answer.</source>
        <translation>La unidad con "%1" no responde.</translation>
    </message>
    <message>
        <source>The drive with the data folder does not answer.</source>
        <translation>La unidad con la carpeta de datos no responde.</translation>
    </message>
    <message>
        <source>The drive with the file {} is not answering. The old picture stays.</source>
        <translation>La unidad con el archivo {} no responde. Se queda la imagen anterior.</translation>
    </message>
    <message>
        <source>The drive with the folder {} is not answering yet. It may be switched off, or out of reach.

As soon as it answers, the program goes on.</source>
        <translation>La unidad con la carpeta {} aún no responde. Puede estar apagada o fuera de alcance.

En cuanto responda, el programa sigue.</translation>
    </message>
    <message>
        <source>The drive with the video library at {} is not answering.</source>
        <translation>La unidad con la videoteca en {} no responde.</translation>
    </message>
    <message>
        <source>The drive with the video library is not answering.</source>
        <translation>La unidad con la videoteca no responde.</translation>
    </message>
    <message>
        <source>The drive with the videos is not answering.</source>
        <translation>La unidad con los vídeos no responde.</translation>
    </message>
    <message>
        <source>The drive with the videos is not answering. No videos were copied.</source>
        <translation>La unidad con los vídeos no responde. No se copió ningún vídeo.</translation>
    </message>
    <message>
        <source>The drive with these videos is not answering. They were not opened.</source>
        <translation>La unidad con estos vídeos no responde. No se abrieron.</translation>
    </message>
    <message>
        <source>The drive with this file is not answering.</source>
        <translation>La unidad con este archivo no responde.</translation>
    </message>
    <message>
        <source>The drive with this picture is not answering.</source>
        <translation>La unidad con esta imagen no responde.</translation>
    </message>
    <message>
        <source>The drive with this video is not answering.</source>
        <translation>La unidad con este vídeo no responde.</translation>
    </message>
    <message>
        <source>The drive with this video is not answering. The video was not opened.</source>
        <translation>La unidad con este vídeo no responde. No se abrió el vídeo.</translation>
    </message>
    <message>
        <source>The file "{}" cannot be read: {}.</source>
        <translation>No se puede leer el archivo "{}": {}.</translation>
    </message>
    <message>
        <source>The file "{}" changed or went while it was being sent, so nothing was sent.</source>
        <translation>El archivo "{}" cambió o desapareció mientras se enviaba, así que no se envió nada.</translation>
    </message>
    <message>
        <source>The file became shorter while it was being sent.</source>
        <translation>El archivo se acortó mientras se enviaba.</translation>
    </message>
    <message>
        <source>The file cannot be read, or it is too large for notes.</source>
        <translation>El archivo no se puede leer, o es demasiado grande para notas.</translation>
    </message>
    <message>
        <source>The file is no video that can be read.</source>
        <translation>El archivo no es un vídeo que se pueda leer.</translation>
    </message>
    <message>
        <source>The file of the macros would need {} bytes. Beyond {} it could not be read whole. Remove a macro first.</source>
        <translation>El archivo de macros ocuparía {} bytes. Con más de {} no se podría leer entero. Quite antes una macro.</translation>
    </message>
    <message>
        <source>The file {} cannot be deleted.</source>
        <translation>No se puede eliminar el archivo {}.</translation>
    </message>
    <message>
        <source>The file {} cannot be written.</source>
        <translation>No se puede escribir el archivo {}.</translation>
    </message>
    <message>
        <source>The file {} cannot be written: {}</source>
        <translation>No se puede escribir el archivo {}: {}</translation>
    </message>
    <message>
        <source>The files are converted and uploaded to your web space; what the page shows already stays. Its link goes to these addresses:</source>
        <translation>Los archivos se convierten y se suben a su espacio web; lo que ya muestra la página se queda. Su enlace va a estas direcciones:</translation>
    </message>
    <message>
        <source>The files are converted, and each goes in a mail of its own to these addresses:</source>
        <translation>Los archivos se convierten, y cada uno va en su propio correo a estas direcciones:</translation>
    </message>
    <message>
        <source>The first %1 of %2 pages</source>
        <translation>Las primeras %1 de %2 páginas</translation>
    </message>
    <message>
        <source>The first lines of each video's notes, at its foot</source>
        <translation>Las primeras líneas de las notas de cada vídeo, a su pie</translation>
    </message>
    <message>
        <source>The folder "School Pics" cannot be made.</source>
        <translation>No se puede crear la carpeta "School Pics".</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>No se puede crear la carpeta.</translation>
    </message>
    <message>
        <source>The folder cannot be made: {}.</source>
        <translation>No se puede crear la carpeta: {}.</translation>
    </message>
    <message>
        <source>The folder for the converted videos could not be made: {}</source>
        <translation>No se pudo crear la carpeta de los vídeos convertidos: {}</translation>
    </message>
    <message>
        <source>The folder for the video is not there any more.</source>
        <translation>La carpeta del vídeo ya no está.</translation>
    </message>
    <message>
        <source>The folder for what is made on the way could not be made.</source>
        <translation>No se pudo crear la carpeta para los archivos intermedios.</translation>
    </message>
    <message>
        <source>The folder is %1</source>
        <translation>La carpeta es %1</translation>
    </message>
    <message>
        <source>The folder is not there any more.</source>
        <translation>La carpeta ya no está.</translation>
    </message>
    <message>
        <source>The folder of the image file cannot be written to.</source>
        <translation>No se puede escribir en la carpeta del archivo de imagen.</translation>
    </message>
    <message>
        <source>The folder of the image file is not there.</source>
        <translation>La carpeta del archivo de imagen no está.</translation>
    </message>
    <message>
        <source>The folder of {} is not there any more. Choose whose lesson it is.</source>
        <translation>La carpeta de {} ya no está. Elija de quién es la lección.</translation>
    </message>
    <message>
        <source>The folder {} belongs to the program. You cannot {} it.</source>
        <translation>La carpeta {} pertenece al programa. No se puede {}.</translation>
    </message>
    <message>
        <source>The folder {} belongs to this library. Choose a drive or folder outside of it.</source>
        <translation>La carpeta {} pertenece a esta videoteca. Elija una unidad o carpeta fuera de ella.</translation>
    </message>
    <message>
        <source>The folder {} cannot be found. The video was not moved.</source>
        <translation>No se encuentra la carpeta {}. El vídeo no se movió.</translation>
    </message>
    <message>
        <source>The folder {} cannot be found. The {} was not moved.</source>
        <translation>No se encuentra la carpeta {}. {}: sin mover.</translation>
    </message>
    <message>
        <source>The folder {} cannot be made.</source>
        <translation>No se puede crear la carpeta {}.</translation>
    </message>
    <message>
        <source>The folder {} cannot be made: {}.</source>
        <translation>No se puede crear la carpeta {}: {}.</translation>
    </message>
    <message>
        <source>The folder {} cannot be reached.</source>
        <translation>No se llega a la carpeta {}.</translation>
    </message>
    <message>
        <source>The folder {} cannot be reached. Nothing was changed.</source>
        <translation>No se llega a la carpeta {}. No se cambió nada.</translation>
    </message>
    <message>
        <source>The folder {} cannot be used for videos.</source>
        <translation>La carpeta {} no se puede usar para vídeos.</translation>
    </message>
    <message>
        <source>The graph connects a filter {} that it does not have.</source>
        <translation>El grafo conecta un filtro {} que no tiene.</translation>
    </message>
    <message>
        <source>The graph has no {} "{}".</source>
        <translation>El grafo no tiene {} "{}".</translation>
    </message>
    <message>
        <source>The graph has two filters "{}".</source>
        <translation>El grafo tiene dos filtros "{}".</translation>
    </message>
    <message>
        <source>The graph has two filters {}.</source>
        <translation>El grafo tiene dos filtros {}.</translation>
    </message>
    <message>
        <source>The graph's filter "{}" is of an unknown class, {}.</source>
        <translation>El filtro "{}" del grafo es de una clase desconocida, {}.</translation>
    </message>
    <message>
        <source>The graph's filter {} has no label.</source>
        <translation>El filtro {} del grafo no tiene nombre.</translation>
    </message>
    <message>
        <source>The help pages are missing. They should lie in %1.</source>
        <translation>Faltan las páginas de ayuda. Deberían estar en %1.</translation>
    </message>
    <message>
        <source>The image could not be begun.</source>
        <translation>No se pudo empezar la imagen.</translation>
    </message>
    <message>
        <source>The image could not be given its name.</source>
        <translation>No se pudo dar su nombre a la imagen.</translation>
    </message>
    <message>
        <source>The last recording cannot be moved away from {}.</source>
        <translation>No se puede apartar la última grabación de {}.</translation>
    </message>
    <message>
        <source>The last seconds again and again, slowly (L)</source>
        <translation>Los últimos segundos una y otra vez, despacio (L)</translation>
    </message>
    <message>
        <source>The last video is still being saved.</source>
        <translation>El último vídeo aún se está guardando.</translation>
    </message>
    <message>
        <source>The last video is still being saved. Do you want to go on all the same?</source>
        <translation>El último vídeo aún se está guardando. ¿Desea continuar de todos modos?</translation>
    </message>
    <message>
        <source>The lesson WAS NOT SAVED. {}</source>
        <translation>La lección NO SE GUARDÓ. {}</translation>
    </message>
    <message>
        <source>The lesson cannot be written: {}</source>
        <translation>No se puede escribir la lección: {}</translation>
    </message>
    <message>
        <source>The lesson has been saved or thrown away in another window.</source>
        <translation>La lección se guardó o descartó en otra ventana.</translation>
    </message>
    <message>
        <source>The lesson has not been saved. Do you want to leave it? It is offered again at the next start.</source>
        <translation>La lección no está guardada. ¿Desea dejarla? Se ofrecerá de nuevo en el próximo inicio.</translation>
    </message>
    <message>
        <source>The lesson is still being saved.</source>
        <translation>La lección aún se está guardando.</translation>
    </message>
    <message>
        <source>The lesson waits in the recorder</source>
        <translation>La lección espera en la grabadora</translation>
    </message>
    <message>
        <source>The library folder {} cannot be reached; choose another in Program Setup, under General.</source>
        <translation>No se llega a la carpeta de la videoteca {}; elija otra en Configuración, en General.</translation>
    </message>
    <message>
        <source>The library for cameras cannot be used on this machine.</source>
        <translation>La biblioteca de cámaras no se puede usar en este equipo.</translation>
    </message>
    <message>
        <source>The list of videos to open loads the files of a shot together, in place of undoing the last open</source>
        <translation>La lista de vídeos carga juntos los archivos de un golpe, en vez de deshacer la última apertura</translation>
    </message>
    <message>
        <source>The macro could not be removed. {}</source>
        <translation>No se pudo quitar la macro. {}</translation>
    </message>
    <message>
        <source>The macro could not be saved. {}</source>
        <translation>No se pudo guardar la macro. {}</translation>
    </message>
    <message>
        <source>The macro needs a name.</source>
        <translation>La macro necesita un nombre.</translation>
    </message>
    <message>
        <source>The macros in "{}" cannot be read.</source>
        <translation>No se pueden leer las macros de "{}".</translation>
    </message>
    <message>
        <source>The macros in "{}" could not all be read: the file is damaged, too long, or of another program. It will be kept under another name before anything is changed in it.</source>
        <translation>No se pudieron leer todas las macros de "{}": el archivo está dañado, es demasiado largo o de otro programa. Se guardará con otro nombre antes de cambiar algo en él.</translation>
    </message>
    <message>
        <source>The mail server did not take the message.{}</source>
        <translation>El servidor de correo no aceptó el mensaje.{}</translation>
    </message>
    <message>
        <source>The mail server does not let this sender send.{}</source>
        <translation>El servidor de correo no deja enviar a este remitente.{}</translation>
    </message>
    <message>
        <source>The mail server refuses the address {}, so nothing was sent to anybody.{}</source>
        <translation>El servidor de correo rechaza la dirección {}, así que no se envió nada a nadie.{}</translation>
    </message>
    <message>
        <source>The mail server takes a login only with encryption. Choose TLS or SSL.</source>
        <translation>El servidor de correo solo admite iniciar sesión con cifrado. Elija TLS o SSL.</translation>
    </message>
    <message>
        <source>The mail server wants a login.</source>
        <translation>El servidor de correo pide iniciar sesión.</translation>
    </message>
    <message>
        <source>The message has no reader.</source>
        <translation>El mensaje no tiene destinatario.</translation>
    </message>
    <message>
        <source>The message is larger than the mail server takes.{}</source>
        <translation>El mensaje es mayor de lo que admite el servidor de correo.{}</translation>
    </message>
    <message>
        <source>The microphone cannot be found.</source>
        <translation>No se encuentra el micrófono.</translation>
    </message>
    <message>
        <source>The microphone cannot be opened.</source>
        <translation>No se puede abrir el micrófono.</translation>
    </message>
    <message>
        <source>The microphone does not answer.</source>
        <translation>El micrófono no responde.</translation>
    </message>
    <message>
        <source>The microphone gives no sound any more.</source>
        <translation>El micrófono ya no da sonido.</translation>
    </message>
    <message>
        <source>The microphone gives no sound.</source>
        <translation>El micrófono no da sonido.</translation>
    </message>
    <message>
        <source>The microphone gives nothing any more.</source>
        <translation>El micrófono ya no da nada.</translation>
    </message>
    <message>
        <source>The microphone gives nothing any more. Is it still plugged in?</source>
        <translation>El micrófono ya no da nada. ¿Sigue conectado?</translation>
    </message>
    <message>
        <source>The microphone has ended.</source>
        <translation>El micrófono ha terminado.</translation>
    </message>
    <message>
        <source>The microphone has no such line.</source>
        <translation>El micrófono no tiene esa línea.</translation>
    </message>
    <message>
        <source>The microphone has stopped: {}</source>
        <translation>El micrófono se ha detenido: {}</translation>
    </message>
    <message>
        <source>The microphone is not there any more.</source>
        <translation>El micrófono ya no está.</translation>
    </message>
    <message>
        <source>The microphone may not be used: it wants a password.</source>
        <translation>El micrófono no se puede usar: pide contraseña.</translation>
    </message>
    <message>
        <source>The middle of each video, side by side</source>
        <translation>El centro de cada vídeo, lado a lado</translation>
    </message>
    <message>
        <source>The model picture {} cannot be loaded: {}</source>
        <translation>No se puede cargar la imagen modelo {}: {}</translation>
    </message>
    <message>
        <source>The name is always the first field.</source>
        <translation>El nombre es siempre el primer campo.</translation>
    </message>
    <message>
        <source>The name of the file is empty.</source>
        <translation>El nombre del archivo está vacío.</translation>
    </message>
    <message>
        <source>The name of the mail server holds a letter that is in no name.</source>
        <translation>El nombre del servidor de correo contiene una letra que no está en ningún nombre.</translation>
    </message>
    <message>
        <source>The name of the server holds a letter that is in no name.</source>
        <translation>El nombre del servidor contiene una letra que no está en ningún nombre.</translation>
    </message>
    <message>
        <source>The name you have chosen already exists in the database.</source>
        <translation>El nombre elegido ya existe en la base de datos.</translation>
    </message>
    <message>
        <source>The new video begins with the picture that is shown (S)</source>
        <translation>El nuevo vídeo empieza con la imagen mostrada (S)</translation>
    </message>
    <message>
        <source>The new video ends with the picture that is shown (E)</source>
        <translation>El nuevo vídeo acaba con la imagen mostrada (E)</translation>
    </message>
    <message>
        <source>The new video has gone.</source>
        <translation>El nuevo vídeo ha desaparecido.</translation>
    </message>
    <message>
        <source>The notes are full: they hold %1 characters. The last %2 that were typed or pasted were left out.</source>
        <translation>Las notas están llenas: caben %1 caracteres. Los últimos %2 escritos o pegados se descartaron.</translation>
    </message>
    <message>
        <source>The notes are longer than {} characters. What follows was not saved.</source>
        <translation>Las notas superan los {} caracteres. Lo que sigue no se guardó.</translation>
    </message>
    <message>
        <source>The notes cannot be read.</source>
        <translation>No se pueden leer las notas.</translation>
    </message>
    <message>
        <source>The notes could not be saved. Do you want to close Kinalyx all the same?</source>
        <translation>No se pudieron guardar las notas. ¿Desea cerrar Kinalyx de todos modos?</translation>
    </message>
    <message>
        <source>The notes could not be saved: %1.</source>
        <translation>No se pudieron guardar las notas: %1.</translation>
    </message>
    <message>
        <source>The notes could not be saved: {}. They are kept and will be tried again.</source>
        <translation>No se pudieron guardar las notas: {}. Se conservan y se intentará de nuevo.</translation>
    </message>
    <message>
        <source>The notes have not been saved. Do you want to lose them?</source>
        <translation>Las notas no se han guardado. ¿Desea perderlas?</translation>
    </message>
    <message>
        <source>The notes of {} could not be saved: somebody else has renamed, moved or deleted the folder. These were the notes:</source>
        <translation>No se pudieron guardar las notas de {}: alguien ha renombrado, movido o eliminado la carpeta. Las notas eran:</translation>
    </message>
    <message>
        <source>The notes were not printed.</source>
        <translation>No se imprimieron las notas.</translation>
    </message>
    <message>
        <source>The notes were not printed. {}</source>
        <translation>No se imprimieron las notas. {}</translation>
    </message>
    <message>
        <source>The notes were printed.</source>
        <translation>Se imprimieron las notas.</translation>
    </message>
    <message>
        <source>The page cannot be opened on this computer: {}</source>
        <translation>No se puede abrir la página en este equipo: {}</translation>
    </message>
    <message>
        <source>The passwords lie in the file mail.ini of your data folder. They are scrambled there, which hides them from a glance and no more; %1. Do not give it away.</source>
        <translation>Las contraseñas están en el archivo mail.ini de su carpeta de datos. Están codificadas, lo que las oculta de un vistazo y nada más; %1. No lo entregue.</translation>
    </message>
    <message>
        <source>The path {} is longer than the 149 characters that the settings can hold. Choose a place with a shorter path.</source>
        <translation>La ruta {} supera los 149 caracteres que caben en los ajustes. Elija un lugar con una ruta más corta.</translation>
    </message>
    <message>
        <source>The picture cannot be shown; the recording goes on.</source>
        <translation>No se puede mostrar la imagen; la grabación sigue.</translation>
    </message>
    <message>
        <source>The picture could not be deleted.</source>
        <translation>No se pudo eliminar la imagen.</translation>
    </message>
    <message>
        <source>The picture could not be read from its file.</source>
        <translation>No se pudo leer la imagen de su archivo.</translation>
    </message>
    <message>
        <source>The picture could not be saved. {}</source>
        <translation>No se pudo guardar la imagen. {}</translation>
    </message>
    <message>
        <source>The picture could not be saved: {}</source>
        <translation>No se pudo guardar la imagen: {}</translation>
    </message>
    <message>
        <source>The picture is frozen</source>
        <translation>La imagen está congelada</translation>
    </message>
    <message>
        <source>The picture is in the clipboard.</source>
        <translation>La imagen está en el portapapeles.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>La imagen es demasiado grande.</translation>
    </message>
    <message>
        <source>The picture of this camera cannot be shown.</source>
        <translation>No se puede mostrar la imagen de esta cámara.</translation>
    </message>
    <message>
        <source>The picture of this camera cannot be shown. It can be recorded all the same.</source>
        <translation>No se puede mostrar la imagen de esta cámara. Se puede grabar de todos modos.</translation>
    </message>
    <message>
        <source>The picture that is shown is the first pose</source>
        <translation>La imagen mostrada es la primera pose</translation>
    </message>
    <message>
        <source>The picture that is shown is the last pose</source>
        <translation>La imagen mostrada es la última pose</translation>
    </message>
    <message>
        <source>The picture was not saved. {}</source>
        <translation>No se guardó la imagen. {}</translation>
    </message>
    <message>
        <source>The picture was saved.</source>
        <translation>Se guardó la imagen.</translation>
    </message>
    <message>
        <source>The pictures cannot be read: the video has gone, or it is damaged.</source>
        <translation>No se pueden leer las imágenes: el vídeo ya no está, o está dañado.</translation>
    </message>
    <message>
        <source>The pictures cannot be taken as they come.</source>
        <translation>No se pueden tomar las imágenes como llegan.</translation>
    </message>
    <message>
        <source>The pictures could not be saved. {}</source>
        <translation>No se pudieron guardar las imágenes. {}</translation>
    </message>
    <message>
        <source>The pictures of the camera cannot be written.</source>
        <translation>No se pueden escribir las imágenes de la cámara.</translation>
    </message>
    <message>
        <source>The pictures would be too large.</source>
        <translation>Las imágenes serían demasiado grandes.</translation>
    </message>
    <message>
        <source>The port of the mail server is no port.</source>
        <translation>El puerto del servidor de correo no es un puerto.</translation>
    </message>
    <message>
        <source>The printer has not answered yet; the pages may still come out.</source>
        <translation>La impresora aún no ha respondido; las páginas pueden salir todavía.</translation>
    </message>
    <message>
        <source>The printer {} does not take the pages.</source>
        <translation>La impresora {} no admite las páginas.</translation>
    </message>
    <message>
        <source>The profile of this %1 has no address</source>
        <translation>El perfil (%1) no tiene dirección</translation>
    </message>
    <message>
        <source>The profiles have no field "E-Mail Address". Program Setup has them.</source>
        <translation>Los perfiles no tienen el campo "E-Mail Address". Está en Configuración.</translation>
    </message>
    <message>
        <source>The program avitrim has failed.</source>
        <translation>El programa avitrim ha fallado.</translation>
    </message>
    <message>
        <source>The program starts with this camera, its size and its format from now on</source>
        <translation>El programa empieza desde ahora con esta cámara, su tamaño y su formato</translation>
    </message>
    <message>
        <source>The quality must be 0 to 100.</source>
        <translation>La calidad debe ser de 0 a 100.</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>No se puede leer la grabación.</translation>
    </message>
    <message>
        <source>The recording has not been saved. Do you want to throw it away?</source>
        <translation>La grabación no se ha guardado. ¿Desea descartarla?</translation>
    </message>
    <message>
        <source>The recording holds no picture.</source>
        <translation>La grabación no contiene imágenes.</translation>
    </message>
    <message>
        <source>The recording was put away.</source>
        <translation>La grabación se apartó.</translation>
    </message>
    <message>
        <source>The screen cannot be opened.</source>
        <translation>No se puede abrir la pantalla.</translation>
    </message>
    <message>
        <source>The screen cannot be recorded here: Kinalyx runs on no desktop that could show it.</source>
        <translation>Aquí no se puede grabar la pantalla: Kinalyx no está en un escritorio que pueda mostrarla.</translation>
    </message>
    <message>
        <source>The screen does not answer.</source>
        <translation>La pantalla no responde.</translation>
    </message>
    <message>
        <source>The screen gives no picture.</source>
        <translation>La pantalla no da imagen.</translation>
    </message>
    <message>
        <source>The screen gives nothing any more.</source>
        <translation>La pantalla ya no da nada.</translation>
    </message>
    <message>
        <source>The screen gives nothing any more. Is it still plugged in?</source>
        <translation>La pantalla ya no da nada. ¿Sigue conectada?</translation>
    </message>
    <message>
        <source>The screen has ended.</source>
        <translation>La pantalla ha terminado.</translation>
    </message>
    <message>
        <source>The screen has stopped: {}</source>
        <translation>La pantalla se ha detenido: {}</translation>
    </message>
    <message>
        <source>The screen is not there any more.</source>
        <translation>La pantalla ya no está.</translation>
    </message>
    <message>
        <source>The screen may not be used: it wants a password.</source>
        <translation>La pantalla no se puede usar: pide contraseña.</translation>
    </message>
    <message>
        <source>The screen was not given.</source>
        <translation>No se dio la pantalla.</translation>
    </message>
    <message>
        <source>The seconds of each video, from the zero point of its timer</source>
        <translation>Los segundos de cada vídeo, desde el cero de su cronómetro</translation>
    </message>
    <message>
        <source>The selected video appears to be corrupt. Would you like to delete it?</source>
        <translation>El vídeo elegido parece dañado. ¿Desea eliminarlo?</translation>
    </message>
    <message>
        <source>The server "{}" shows another key than the one that this computer remembers. Either it was set up anew, or somebody else is in between: nothing was sent, and no password. If your provider confirms the new key, remove the old one's line from the file "{}".</source>
        <translation>El servidor "{}" muestra otra clave que la que recuerda este equipo. O se instaló de nuevo, o hay alguien en medio: no se envió nada, ni la contraseña. Si su proveedor confirma la nueva clave, quite la línea de la anterior del archivo "{}".</translation>
    </message>
    <message>
        <source>The server asks for a login</source>
        <translation>El servidor pide iniciar sesión</translation>
    </message>
    <message>
        <source>The server cannot call this computer back, as it must in the active mode. Choose the passive mode.{}</source>
        <translation>El servidor no puede llamar a este equipo, como debe en modo activo. Elija el modo pasivo.{}</translation>
    </message>
    <message>
        <source>The server does not allow it.{}</source>
        <translation>El servidor no lo permite.{}</translation>
    </message>
    <message>
        <source>The server does not know the passive mode. Choose the active mode.{}</source>
        <translation>El servidor no conoce el modo pasivo. Elija el modo activo.{}</translation>
    </message>
    <message>
        <source>The server does not let the folder "{}" be made.</source>
        <translation>El servidor no deja crear la carpeta "{}".</translation>
    </message>
    <message>
        <source>The server has no such file or folder.{}</source>
        <translation>El servidor no tiene ese archivo o carpeta.{}</translation>
    </message>
    <message>
        <source>The server has no such folder.{}</source>
        <translation>El servidor no tiene esa carpeta.{}</translation>
    </message>
    <message>
        <source>The server is full.{}</source>
        <translation>El servidor está lleno.{}</translation>
    </message>
    <message>
        <source>The server, the port and the way of encryption are told by who keeps your mailbox.</source>
        <translation>El servidor, el puerto y el cifrado los dice quien lleva su buzón.</translation>
    </message>
    <message>
        <source>The settings cannot be saved in {}, so changes last until the program closes.</source>
        <translation>Los ajustes no se pueden guardar en {}; los cambios duran hasta que se cierre el programa.</translation>
    </message>
    <message>
        <source>The settings cannot be saved in {}. The program works with its first settings, and changes last until it closes.</source>
        <translation>Los ajustes no se pueden guardar en {}. El programa trabaja con sus primeros ajustes, y los cambios duran hasta que se cierre.</translation>
    </message>
    <message>
        <source>The sound server does not answer.</source>
        <translation>El servidor de sonido no responde.</translation>
    </message>
    <message>
        <source>The source and destination folders are the same. No videos were copied.</source>
        <translation>Las carpetas de origen y destino son la misma. No se copió ningún vídeo.</translation>
    </message>
    <message>
        <source>The source and destination folders are the same. The video was not moved.</source>
        <translation>Las carpetas de origen y destino son la misma. El vídeo no se movió.</translation>
    </message>
    <message>
        <source>The specified file does not contain media streams, make sure you choose a valid media file</source>
        <translation>El archivo no contiene flujos multimedia; elija un archivo multimedia válido</translation>
    </message>
    <message>
        <source>The student has no videos.</source>
        <translation>No hay vídeos aquí.</translation>
    </message>
    <message>
        <source>The test was cancelled.</source>
        <translation>La prueba se canceló.</translation>
    </message>
    <message>
        <source>The text is not that of a graph.</source>
        <translation>El texto no es el de un grafo.</translation>
    </message>
    <message>
        <source>The text of the graph breaks off or is damaged at character {}: {}</source>
        <translation>El texto del grafo se corta o está dañado en el carácter {}: {}</translation>
    </message>
    <message>
        <source>The values of the field "{}" are stored under "{}", its name of before. Please choose another name.</source>
        <translation>Los valores del campo "{}" están guardados como "{}", su nombre anterior. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The video "{}" is damaged: it holds no picture that can be shown.</source>
        <translation>El vídeo "{}" está dañado: no contiene ninguna imagen que se pueda mostrar.</translation>
    </message>
    <message>
        <source>The video "{}" is no longer there.</source>
        <translation>El vídeo "{}" ya no está.</translation>
    </message>
    <message>
        <source>The video begins at the picture that is shown (I)</source>
        <translation>El vídeo empieza en la imagen mostrada (I)</translation>
    </message>
    <message>
        <source>The video begins with the frame that is shown (S)</source>
        <translation>El vídeo empieza con el fotograma mostrado (S)</translation>
    </message>
    <message>
        <source>The video could not be renamed</source>
        <translation>No se pudo renombrar el vídeo</translation>
    </message>
    <message>
        <source>The video could not be saved: </source>
        <translation>No se pudo guardar el vídeo: </translation>
    </message>
    <message>
        <source>The video ends at the picture that is shown (O)</source>
        <translation>El vídeo acaba en la imagen mostrada (O)</translation>
    </message>
    <message>
        <source>The video ends with the frame that is shown (E)</source>
        <translation>El vídeo acaba con el fotograma mostrado (E)</translation>
    </message>
    <message>
        <source>The video in window {} has no mark: M makes one</source>
        <translation>El vídeo de la ventana {} no tiene marca: M pone una</translation>
    </message>
    <message>
        <source>The video is attached twice: the file that ends in .mp4 plays on telephones and computers, the one that ends in .wmv in Windows Media Player.</source>
        <translation>El vídeo va adjunto dos veces: el archivo que acaba en .mp4 funciona en teléfonos y ordenadores, el que acaba en .wmv en Windows Media Player.</translation>
    </message>
    <message>
        <source>The video is attached. Windows Media Player plays it.</source>
        <translation>El vídeo va adjunto. Windows Media Player lo reproduce.</translation>
    </message>
    <message>
        <source>The video is saved. The analysis section did not open it.</source>
        <translation>El vídeo está guardado. El análisis no lo abrió.</translation>
    </message>
    <message>
        <source>The video library at {} cannot be reached. Nothing was changed.</source>
        <translation>No se llega a la videoteca en {}. No se cambió nada.</translation>
    </message>
    <message>
        <source>The video library at {} is not there any more. Do you want to begin a new one in its place?</source>
        <translation>La videoteca en {} ya no está. ¿Desea empezar una nueva en su lugar?</translation>
    </message>
    <message>
        <source>The video name you have chosen already exists, please try again.</source>
        <translation>El nombre de vídeo elegido ya existe; inténtelo con otro.</translation>
    </message>
    <message>
        <source>The video of the earlier day</source>
        <translation>El vídeo del día anterior</translation>
    </message>
    <message>
        <source>The video was not moved</source>
        <translation>El vídeo no se movió</translation>
    </message>
    <message>
        <source>The video {}</source>
        <translation>El vídeo {}</translation>
    </message>
    <message>
        <source>The videos are locked: use the bar below</source>
        <translation>Los vídeos están bloqueados: use la barra de abajo</translation>
    </message>
    <message>
        <source>The videos are still being sent. Do you want to cancel that?</source>
        <translation>Los vídeos aún se están enviando. ¿Desea cancelarlo?</translation>
    </message>
    <message>
        <source>The videos have no marks yet: M makes one where each of them stands</source>
        <translation>Los vídeos no tienen marcas: M pone una donde está cada uno</translation>
    </message>
    <message>
        <source>The whole of the current video is played</source>
        <translation>Se reproduce todo el vídeo actual</translation>
    </message>
    <message>
        <source>The {} "{}" did not do it: {}.{}</source>
        <translation>El {} "{}" no lo hizo: {}.{}</translation>
    </message>
    <message>
        <source>The {} "{}" does not accept the login or the password.{}</source>
        <translation>El {} "{}" no acepta el usuario o la contraseña.{}</translation>
    </message>
    <message>
        <source>The {} "{}" does not answer. Is this computer connected to the Internet?</source>
        <translation>El {} "{}" no responde. ¿Está este equipo conectado a Internet?</translation>
    </message>
    <message>
        <source>The {} "{}" does not speak the encryption that the settings want at this port. See whether port and encryption are as your provider says.</source>
        <translation>El {} "{}" no habla en este puerto el cifrado que piden los ajustes. Mire si el puerto y el cifrado son los que dice su proveedor.</translation>
    </message>
    <message>
        <source>The {} "{}" has refused it.{}</source>
        <translation>El {} "{}" lo ha rechazado.{}</translation>
    </message>
    <message>
        <source>The {} "{}" has stopped answering.{}</source>
        <translation>El {} "{}" ha dejado de responder.{}</translation>
    </message>
    <message>
        <source>The {} "{}" is busy and has hung up.{}</source>
        <translation>El {} "{}" está ocupado y ha colgado.{}</translation>
    </message>
    <message>
        <source>The {} "{}" offers no encryption, so nothing was sent, and no password.</source>
        <translation>El {} "{}" no ofrece cifrado, así que no se envió nada, ni la contraseña.</translation>
    </message>
    <message>
        <source>The {} "{}" takes no calls at this port.</source>
        <translation>El {} "{}" no admite llamadas en este puerto.</translation>
    </message>
    <message>
        <source>The {} could not be removed: {}</source>
        <translation>No se pudo quitar {}: {}</translation>
    </message>
    <message>
        <source>The {} could not be renamed</source>
        <translation>No se pudo renombrar {}</translation>
    </message>
    <message>
        <source>The {} name that you have chosen already exists on the system.</source>
        <translation>El nombre elegido ya existe en el sistema ({}).</translation>
    </message>
    <message>
        <source>The {} was not moved</source>
        <translation>{}: sin mover</translation>
    </message>
    <message>
        <source>The {} was not removed</source>
        <translation>{}: sin quitar</translation>
    </message>
    <message>
        <source>The {} {}</source>
        <translation>{} {}</translation>
    </message>
    <message>
        <source>Then and Now</source>
        <translation>Antes y ahora</translation>
    </message>
    <message>
        <source>Then and now</source>
        <translation>Antes y ahora</translation>
    </message>
    <message>
        <source>There are files of these names already.</source>
        <translation>Ya hay archivos con estos nombres.</translation>
    </message>
    <message>
        <source>There are no files in the folder.</source>
        <translation>No hay archivos en la carpeta.</translation>
    </message>
    <message>
        <source>There are no macros yet; save a drawing as one first</source>
        <translation>Aún no hay macros; guarde antes un dibujo como macro</translation>
    </message>
    <message>
        <source>There are no notes to print.</source>
        <translation>No hay notas que imprimir.</translation>
    </message>
    <message>
        <source>There are no videos here with the names that belong together with "{}".</source>
        <translation>Aquí no hay vídeos con nombres que vayan junto con "{}".</translation>
    </message>
    <message>
        <source>There are no videos here yet.</source>
        <translation>Aún no hay vídeos aquí.</translation>
    </message>
    <message>
        <source>There are no videos on this disc.</source>
        <translation>No hay vídeos en este disco.</translation>
    </message>
    <message>
        <source>There are only {} pages.</source>
        <translation>Solo hay {} páginas.</translation>
    </message>
    <message>
        <source>There are other files in the folder {}. Move or delete them first.</source>
        <translation>Hay otros archivos en la carpeta {}. Muévalos o elimínelos primero.</translation>
    </message>
    <message>
        <source>There are too many pages with this name on the server.</source>
        <translation>Hay demasiadas páginas con este nombre en el servidor.</translation>
    </message>
    <message>
        <source>There are too many unfinished lessons in {}.</source>
        <translation>Hay demasiadas lecciones sin terminar en {}.</translation>
    </message>
    <message>
        <source>There are {} files in the folder</source>
        <translation>Hay {} archivos en la carpeta</translation>
    </message>
    <message>
        <source>There can be no more than {} macros.</source>
        <translation>No puede haber más de {} macros.</translation>
    </message>
    <message>
        <source>There is 1 file in the folder</source>
        <translation>Hay 1 archivo en la carpeta</translation>
    </message>
    <message>
        <source>There is a file named "{}" where a folder is needed.</source>
        <translation>Hay un archivo llamado "{}" donde hace falta una carpeta.</translation>
    </message>
    <message>
        <source>There is a file named "{}" where a folder must be.</source>
        <translation>Hay un archivo llamado "{}" donde debe haber una carpeta.</translation>
    </message>
    <message>
        <source>There is a folder named "{}" where a file must be.</source>
        <translation>Hay una carpeta llamada "{}" donde debe haber un archivo.</translation>
    </message>
    <message>
        <source>There is a problem finding data on this original video. If this is a Windows 10 pc, try running the 'tweaker' software in Program Setup\Capture. Err 2238</source>
        <translation>No se encuentran los datos de este vídeo original. En un PC con Windows 10, pruebe el 'tweaker' en Configuración\Grabación. Err 2238</translation>
    </message>
    <message>
        <source>There is already a video with the name "{}".</source>
        <translation>Ya hay un vídeo con el nombre "{}".</translation>
    </message>
    <message>
        <source>There is already a video with the same name in the Quick Launch folder. The copy process will be cancelled.</source>
        <translation>Ya hay un vídeo con ese nombre en la carpeta de acceso rápido. Se cancela la copia.</translation>
    </message>
    <message>
        <source>There is already an Instructor or Database with this name.</source>
        <translation>Ya hay un monitor o una base de datos con ese nombre.</translation>
    </message>
    <message>
        <source>There is no disc in the drive.</source>
        <translation>No hay disco en la unidad.</translation>
    </message>
    <message>
        <source>There is no drive for discs in this computer.</source>
        <translation>No hay unidad de discos en este equipo.</translation>
    </message>
    <message>
        <source>There is no drive for discs in this computer. An image file or a stick serve as well.</source>
        <translation>No hay unidad de discos en este equipo. Un archivo de imagen o una memoria USB también sirven.</translation>
    </message>
    <message>
        <source>There is no graph that could run.</source>
        <translation>No hay ningún grafo que pueda funcionar.</translation>
    </message>
    <message>
        <source>There is no lesson to be saved.</source>
        <translation>No hay ninguna lección que guardar.</translation>
    </message>
    <message>
        <source>There is no other database. Add one first.</source>
        <translation>No hay otra base de datos. Añada una primero.</translation>
    </message>
    <message>
        <source>There is no picture in the file {} that can be shown. The old picture stays.</source>
        <translation>En el archivo {} no hay ninguna imagen que se pueda mostrar. Se queda la anterior.</translation>
    </message>
    <message>
        <source>There is no picture in this file.</source>
        <translation>No hay ninguna imagen en este archivo.</translation>
    </message>
    <message>
        <source>There is no picture to save.</source>
        <translation>No hay imagen que guardar.</translation>
    </message>
    <message>
        <source>There is no picture to show.</source>
        <translation>No hay imagen que mostrar.</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>No hay imagen.</translation>
    </message>
    <message>
        <source>There is no strobe picture to save.</source>
        <translation>No hay imagen estroboscópica que guardar.</translation>
    </message>
    <message>
        <source>There is no such input of the microphone.</source>
        <translation>El micrófono no tiene esa entrada.</translation>
    </message>
    <message>
        <source>There is no video among these files that is not here already.</source>
        <translation>Entre estos archivos no hay ningún vídeo que no esté ya aquí.</translation>
    </message>
    <message>
        <source>There is no video among these files.</source>
        <translation>Entre estos archivos no hay ningún vídeo.</translation>
    </message>
    <message>
        <source>There is no video among what was dropped.</source>
        <translation>Entre lo soltado no hay ningún vídeo.</translation>
    </message>
    <message>
        <source>There is no video in the camera's folder.

%1</source>
        <translation>No hay ningún vídeo en la carpeta de la cámara.

%1</translation>
    </message>
    <message>
        <source>There is no video in the highlighted window</source>
        <translation>No hay vídeo en la ventana marcada</translation>
    </message>
    <message>
        <source>There is no video to show.</source>
        <translation>No hay vídeo que mostrar.</translation>
    </message>
    <message>
        <source>There is no {} of the name "{}", or this computer is not connected to the Internet.</source>
        <translation>No hay ningún {} con el nombre "{}", o este equipo no está conectado a Internet.</translation>
    </message>
    <message>
        <source>There is not enough room: {} MB are needed, and {} MB are free.</source>
        <translation>No hay bastante espacio: hacen falta {} MB y hay {} MB libres.</translation>
    </message>
    <message>
        <source>There is nothing to keep yet.</source>
        <translation>Aún no hay nada que guardar.</translation>
    </message>
    <message>
        <source>There is nothing to look at yet.</source>
        <translation>Aún no hay nada que ver.</translation>
    </message>
    <message>
        <source>There is nothing to loop yet.</source>
        <translation>Aún no hay nada que repetir.</translation>
    </message>
    <message>
        <source>There is room for twelve hot zones. Remove one of them first.</source>
        <translation>Caben doce zonas. Quite antes una de ellas.</translation>
    </message>
    <message>
        <source>There is too little room for what is made on the way: {}</source>
        <translation>Falta espacio para los archivos intermedios: {}</translation>
    </message>
    <message>
        <source>There is too little room on the disk for a lesson.</source>
        <translation>Falta espacio en el disco para una lección.</translation>
    </message>
    <message>
        <source>There is too little room: {} of {}.</source>
        <translation>Falta espacio: {} de {}.</translation>
    </message>
    <message>
        <source>There was a problem creating the company name for the web page.</source>
        <translation>Hubo un problema al crear el nombre de la empresa para la página web.</translation>
    </message>
    <message>
        <source>There was a problem creating the {} name for the web page.</source>
        <translation>Hubo un problema al crear el nombre ({}) para la página web.</translation>
    </message>
    <message>
        <source>There was a problem saving this video.</source>
        <translation>Hubo un problema al guardar este vídeo.</translation>
    </message>
    <message>
        <source>There was a problem saving this video.

{}</source>
        <translation>Hubo un problema al guardar este vídeo.

{}</translation>
    </message>
    <message>
        <source>These buttons and their keys move all videos (A)</source>
        <translation>Estos botones y sus teclas mueven todos los vídeos (A)</translation>
    </message>
    <message>
        <source>These videos were taken at different rates and go by the time. Click to go picture by picture</source>
        <translation>Estos vídeos tienen frecuencias distintas y van por tiempo. Haga clic para ir imagen a imagen</translation>
    </message>
    <message>
        <source>These videos were taken at different rates and go picture by picture. Click to go by the time</source>
        <translation>Estos vídeos tienen frecuencias distintas y van imagen a imagen. Haga clic para ir por tiempo</translation>
    </message>
    <message>
        <source>Thick</source>
        <translation>Grueso</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fino</translation>
    </message>
    <message>
        <source>This Library</source>
        <translation>Esta videoteca</translation>
    </message>
    <message>
        <source>This camera has nothing to set from here. What it can do, its own buttons or its app do.</source>
        <translation>Esta cámara no se puede ajustar desde aquí. Lo que sabe hacer lo hacen sus botones o su app.</translation>
    </message>
    <message>
        <source>This desktop does not let programs record the screen: its service "xdg-desktop-portal" does not answer. It comes with GNOME and KDE; a session of type "Xorg", which the log-in screen offers, does without it.</source>
        <translation>Este escritorio no deja grabar la pantalla: su servicio "xdg-desktop-portal" no responde. Viene con GNOME y KDE; una sesión de tipo "Xorg", que ofrece la pantalla de inicio, no lo necesita.</translation>
    </message>
    <message>
        <source>This drive has no trash: what is deleted is gone.</source>
        <translation>Esta unidad no tiene papelera: lo que se elimina se pierde.</translation>
    </message>
    <message>
        <source>This folder cannot be reached.

%1</source>
        <translation>No se llega a esta carpeta.

%1</translation>
    </message>
    <message>
        <source>This graph remembers nothing.</source>
        <translation>Este grafo no recuerda nada.</translation>
    </message>
    <message>
        <source>This is a test of the mail settings of Kinalyx.</source>
        <translation>Esto es una prueba de los ajustes de correo de Kinalyx.</translation>
    </message>
    <message>
        <source>This key of a remote control captures, too</source>
        <translation>Esta tecla de un mando también graba</translation>
    </message>
    <message>
        <source>This lesson is already in the Files to Send list.</source>
        <translation>Esta lección ya está en la lista de envío.</translation>
    </message>
    <message>
        <source>This machine cannot record sound.</source>
        <translation>Este equipo no puede grabar sonido.</translation>
    </message>
    <message>
        <source>This macro holds no drawings.</source>
        <translation>Esta macro no contiene dibujos.</translation>
    </message>
    <message>
        <source>This picture cannot be shown.</source>
        <translation>No se puede mostrar esta imagen.</translation>
    </message>
    <message>
        <source>This picture has gone.</source>
        <translation>Esta imagen ya no está.</translation>
    </message>
    <message>
        <source>This video cannot be opened.</source>
        <translation>No se puede abrir este vídeo.</translation>
    </message>
    <message>
        <source>This video cannot be opened. It is damaged, or not all of it has arrived.</source>
        <translation>No se puede abrir este vídeo. Está dañado, o no ha llegado entero.</translation>
    </message>
    <message>
        <source>This video cannot be played here. </source>
        <translation>Este vídeo no se puede reproducir aquí. </translation>
    </message>
    <message>
        <source>This video cannot be read</source>
        <translation>No se puede leer este vídeo</translation>
    </message>
    <message>
        <source>This video has no ruler yet.</source>
        <translation>Este vídeo aún no tiene regla.</translation>
    </message>
    <message>
        <source>This video is already in the Files to Send list.</source>
        <translation>Este vídeo ya está en la lista de envío.</translation>
    </message>
    <message>
        <source>This video is measured in pixels again</source>
        <translation>Este vídeo se mide de nuevo en píxeles</translation>
    </message>
    <message>
        <source>This video is not complete. It may still be on its way here.</source>
        <translation>Este vídeo no está completo. Puede que aún esté llegando.</translation>
    </message>
    <message>
        <source>This video is open in the Analysis section. You must close the video before you can continue.</source>
        <translation>Este vídeo está abierto en el análisis. Debe cerrarlo antes de continuar.</translation>
    </message>
    <message>
        <source>This will copy the current video to your Quick Launch folder. Would you like to continue?</source>
        <translation>Se copiará este vídeo a su carpeta de acceso rápido. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>This will remove {} from your system. It must not hold any {} or videos any more.</source>
        <translation>Esto quita {} de su sistema. No debe contener {} ni vídeos.</translation>
    </message>
    <message>
        <source>This will reset your ftp settings to the test site. None comes with Kinalyx: the addresses, the login and the password are emptied.

Do you want to continue?</source>
        <translation>Esto restaura los ajustes FTP al sitio de prueba. Kinalyx no trae ninguno: se vacían las direcciones, el usuario y la contraseña.

¿Desea continuar?</translation>
    </message>
    <message>
        <source>Three at the most</source>
        <translation>Tres como máximo</translation>
    </message>
    <message>
        <source>Three seconds with the logo and the heading of the printed page</source>
        <translation>Tres segundos con el logotipo y el título de la página impresa</translation>
    </message>
    <message>
        <source>Throw Away</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Tick New</source>
        <translation>Marcar nuevos</translation>
    </message>
    <message>
        <source>Tick None</source>
        <translation>No marcar nada</translation>
    </message>
    <message>
        <source>Tick what shall go into the report first</source>
        <translation>Marque primero lo que va al informe</translation>
    </message>
    <message>
        <source>Time from the picture that is shown</source>
        <translation>Tiempo desde la imagen mostrada</translation>
    </message>
    <message>
        <source>Time that remains</source>
        <translation>Tiempo que queda</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>To Main Menu</source>
        <translation>Al menú principal</translation>
    </message>
    <message>
        <source>To the next of ten places</source>
        <translation>Al siguiente de diez lugares</translation>
    </message>
    <message>
        <source>To, up to three addresses</source>
        <translation>Para, hasta tres direcciones</translation>
    </message>
    <message>
        <source>Too many windows are recording into {}.</source>
        <translation>Demasiadas ventanas graban en {}.</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Total %1</translation>
    </message>
    <message>
        <source>Total Cameras</source>
        <translation>Número de cámaras</translation>
    </message>
    <message>
        <source>Total Space Required</source>
        <translation>Espacio necesario</translation>
    </message>
    <message>
        <source>Tournaments</source>
        <translation>Torneos</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Transparency Carve</source>
        <translation>Recorte transparente</translation>
    </message>
    <message>
        <source>Transparency Mode</source>
        <translation>Modo de transparencia</translation>
    </message>
    <message>
        <source>Trigger level</source>
        <translation>Nivel de disparo</translation>
    </message>
    <message>
        <source>Trim End of Video</source>
        <translation>Recortar final</translation>
    </message>
    <message>
        <source>Trim Excess from the END of the video or Choose Save</source>
        <translation>Recorte lo que sobra al FINAL del vídeo, o elija Guardar</translation>
    </message>
    <message>
        <source>Trim Excess from the END of the video or choose to Save New Video.</source>
        <translation>Recorte lo que sobra al FINAL del vídeo, o guarde el nuevo vídeo.</translation>
    </message>
    <message>
        <source>Trim Excess from the FRONT of the video or Choose Save</source>
        <translation>Recorte lo que sobra al PRINCIPIO del vídeo, o elija Guardar</translation>
    </message>
    <message>
        <source>Trim Front of Video</source>
        <translation>Recortar principio</translation>
    </message>
    <message>
        <source>Trim Video</source>
        <translation>Recortar vídeo</translation>
    </message>
    <message>
        <source>Trim by selecting new start and end points, then click the 'Save' button to edit the video.</source>
        <translation>Elija el nuevo principio y final, y pulse 'Guardar' para recortar el vídeo.</translation>
    </message>
    <message>
        <source>Trim excess frames from front and back of the current video.</source>
        <translation>Recortar lo que sobra al principio y al final del vídeo.</translation>
    </message>
    <message>
        <source>Triple</source>
        <translation>Tres</translation>
    </message>
    <message>
        <source>Triple Screen</source>
        <translation>Tres ventanas</translation>
    </message>
    <message>
        <source>Triple Screen, side by side</source>
        <translation>Tres ventanas en fila</translation>
    </message>
    <message>
        <source>Triple {Vertical}</source>
        <translation>Tres {vertical}</translation>
    </message>
    <message>
        <source>Triple, side by side</source>
        <translation>Tres en fila</translation>
    </message>
    <message>
        <source>True Frame Rate</source>
        <translation>Frecuencia real</translation>
    </message>
    <message>
        <source>True Frame Rate...</source>
        <translation>Frecuencia real...</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Turn: drag round this handle</source>
        <translation>Girar: arrastre alrededor de este tirador</translation>
    </message>
    <message>
        <source>Turns the grid of the current window on or off (F12)</source>
        <translation>Muestra u oculta la cuadrícula de la ventana actual (F12)</translation>
    </message>
    <message>
        <source>Twice the pictures, of half the height</source>
        <translation>El doble de imágenes, de media altura</translation>
    </message>
    <message>
        <source>Two Cam</source>
        <translation>2 cámaras</translation>
    </message>
    <message>
        <source>Type a name</source>
        <translation>Escriba un nombre</translation>
    </message>
    <message>
        <source>Type a name for the video.</source>
        <translation>Escriba un nombre para el vídeo.</translation>
    </message>
    <message>
        <source>Type another name for the next video</source>
        <translation>Escribir otro nombre para el próximo vídeo</translation>
    </message>
    <message>
        <source>Type the FTP address first.</source>
        <translation>Escriba primero la dirección FTP.</translation>
    </message>
    <message>
        <source>Type the length of the line first</source>
        <translation>Escriba primero la longitud</translation>
    </message>
    <message>
        <source>Type the new name of {}.</source>
        <translation>Escriba el nuevo nombre de {}.</translation>
    </message>
    <message>
        <source>Type, then press Enter</source>
        <translation>Escriba y pulse Intro</translation>
    </message>
    <message>
        <source>Unable to connect to server to check for updates.</source>
        <translation>No se puede conectar con el servidor para buscar actualizaciones.</translation>
    </message>
    <message>
        <source>Unable to delete the video. Try rebooting, then try again.</source>
        <translation>No se puede eliminar el vídeo. Reinicie el equipo e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>Unable to locate the background picture named {}. The default picture will be reset.</source>
        <translation>No se encuentra la imagen de fondo {}. Se vuelve a la imagen predeterminada.</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Subrayado</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Deshacer (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Undo Last Open</source>
        <translation>Deshacer última</translation>
    </message>
    <message>
        <source>Undock the Play Bar</source>
        <translation>Soltar la barra</translation>
    </message>
    <message>
        <source>Unfinished Lesson</source>
        <translation>Lección sin terminar</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Unlock the videos</source>
        <translation>Desbloquear vídeos</translation>
    </message>
    <message>
        <source>Unlock the videos first</source>
        <translation>Desbloquee primero los vídeos</translation>
    </message>
    <message>
        <source>Until Here</source>
        <translation>Hasta aquí</translation>
    </message>
    <message>
        <source>Up Arrow</source>
        <translation>Flecha arriba</translation>
    </message>
    <message>
        <source>Up Arrow - Rewind</source>
        <translation>Flecha arriba - Al principio</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Upload speed {}kb per second</source>
        <translation>Subida a {}kb por segundo</translation>
    </message>
    <message>
        <source>Uploading to web....</source>
        <translation>Subiendo a la web....</translation>
    </message>
    <message>
        <source>Upright, 1080 x 1920</source>
        <translation>Vertical, 1080 x 1920</translation>
    </message>
    <message>
        <source>Use the 'Webcam and Tuner' selection if you are using a webcam, tuner\video capture card, or tuner cable. To get started, click the button below and choose the webcam or tuner card from the dropdown list.

A telephone on a tripod that shows its picture on the network is a camera for Kinalyx too: give its address under Cameras on the Network.</source>
        <translation>Use 'Webcam y sintonizadora' si tiene una webcam, una tarjeta capturadora o un cable sintonizador. Para empezar, pulse el botón de abajo y elija la webcam o la tarjeta en la lista.

Un teléfono en un trípode que muestra su imagen en la red también es una cámara para Kinalyx: dé su dirección en Cámaras en la red.</translation>
    </message>
    <message>
        <source>VIDEOS</source>
        <translation>VÍDEOS</translation>
    </message>
    <message>
        <source>Vid1</source>
        <translation>Víd1</translation>
    </message>
    <message>
        <source>Vid1             l            Vid2</source>
        <translation>Víd1             l            Víd2</translation>
    </message>
    <message>
        <source>Vid2</source>
        <translation>Víd2</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Video %1 back one frame; hold to go on</source>
        <translation>Vídeo %1 un fotograma atrás; mantenga para seguir</translation>
    </message>
    <message>
        <source>Video %1 forward one frame; hold to go on</source>
        <translation>Vídeo %1 un fotograma adelante; mantenga para seguir</translation>
    </message>
    <message>
        <source>Video Capture</source>
        <translation>Grabación de vídeo</translation>
    </message>
    <message>
        <source>Video Colors</source>
        <translation>Colores de pantalla</translation>
    </message>
    <message>
        <source>Video Display Rate is {}%</source>
        <translation>La frecuencia de pantalla es {}%</translation>
    </message>
    <message>
        <source>Video Files (*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*.vob)|*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*.vob|All Files (*.*)|*.*</source>
        <translation>Archivos de vídeo (*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*.vob)|*.avi;*.mpg;*.mpeg;*.ogg;*.wmv;*.asf;*.qt;*.mov;*.m2v;*.m1v;*.ts;*.mts;*.m2ts;*.mp4;*.3gp;*.flv;*.video_ts.ifo;*.vob|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Video Lessons by {}</source>
        <translation>Lecciones en vídeo de {}</translation>
    </message>
    <message>
        <source>Video Library</source>
        <translation>Videoteca</translation>
    </message>
    <message>
        <source>Video Marks Off</source>
        <translation>Quitar marcas</translation>
    </message>
    <message>
        <source>Video Name</source>
        <translation>Nombre del vídeo</translation>
    </message>
    <message>
        <source>Video Naming</source>
        <translation>Nombres de vídeos</translation>
    </message>
    <message>
        <source>Video Saved Successfully.</source>
        <translation>Vídeo guardado.</translation>
    </message>
    <message>
        <source>Video Saved.</source>
        <translation>Vídeo guardado.</translation>
    </message>
    <message>
        <source>Video Saved... Restarting...</source>
        <translation>Vídeo guardado... Reiniciando...</translation>
    </message>
    <message>
        <source>Video Statistics</source>
        <translation>Datos del vídeo</translation>
    </message>
    <message>
        <source>Video Successfully Deleted!</source>
        <translation>¡Vídeo eliminado!</translation>
    </message>
    <message>
        <source>Video Timer</source>
        <translation>Cronómetro</translation>
    </message>
    <message>
        <source>Video Window 1</source>
        <translation>Ventana de vídeo 1</translation>
    </message>
    <message>
        <source>Video Window 2</source>
        <translation>Ventana de vídeo 2</translation>
    </message>
    <message>
        <source>Video notes</source>
        <translation>Notas del vídeo</translation>
    </message>
    <message>
        <source>Video renamed successfully.</source>
        <translation>Vídeo renombrado.</translation>
    </message>
    <message>
        <source>Video successfully added to the Files to Send list.</source>
        <translation>Vídeo añadido a la lista de envío.</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Videos and folders to open.</source>
        <translation>Vídeos y carpetas que abrir.</translation>
    </message>
    <message>
        <source>Videos are still being sent.</source>
        <translation>Todavía se envían vídeos.</translation>
    </message>
    <message>
        <source>Videos are still being sent. Do you want to give that up?</source>
        <translation>Todavía se envían vídeos. ¿Desea abandonarlo?</translation>
    </message>
    <message>
        <source>Videos on "%1"</source>
        <translation>Vídeos en "%1"</translation>
    </message>
    <message>
        <source>Videos on File</source>
        <translation>Vídeos archivados</translation>
    </message>
    <message>
        <source>Videos on the device</source>
        <translation>Vídeos del dispositivo</translation>
    </message>
    <message>
        <source>Videos that arrive in this folder appear here.

%1</source>
        <translation>Los vídeos que llegan a esta carpeta aparecen aquí.

%1</translation>
    </message>
    <message>
        <source>Videos|{}|All files|*</source>
        <translation>Vídeos|{}|Todos los archivos|*</translation>
    </message>
    <message>
        <source>Volume at full speed</source>
        <translation>Volumen a velocidad normal</translation>
    </message>
    <message>
        <source>WRITING</source>
        <translation>ESCRIBIENDO</translation>
    </message>
    <message>
        <source>Waiting for a Drive</source>
        <translation>Esperando una unidad</translation>
    </message>
    <message>
        <source>Warning! If the network path is invalid at any time, the program will not function. Are you sure you want to continue?</source>
        <translation>¡Atención! Si la ruta de red deja de ser válida, el programa no funcionará. ¿Seguro que desea continuar?</translation>
    </message>
    <message>
        <source>Warning! This will remove the video with its drawings and notes from your system.</source>
        <translation>¡Atención! Esto quita de su sistema el vídeo con sus dibujos y notas.</translation>
    </message>
    <message>
        <source>Warning! This will remove the {} videos with their drawings and notes from your system.</source>
        <translation>¡Atención! Esto quita de su sistema los {} vídeos con sus dibujos y notas.</translation>
    </message>
    <message>
        <source>Warning! You are about to export to the C drive. Are you sure you want to continue?</source>
        <translation>¡Atención! Va a exportar a la unidad C. ¿Seguro que desea continuar?</translation>
    </message>
    <message>
        <source>Warning!!! This will remove the {}, the {} profile, and all of the {} videos from your system.</source>
        <translation>¡¡¡Atención!!! Esto quita de su sistema: {}, su perfil ({}) y todos sus vídeos ({}).</translation>
    </message>
    <message>
        <source>Way of transfer</source>
        <translation>Modo de transferencia</translation>
    </message>
    <message>
        <source>Weaknesses</source>
        <translation>Puntos débiles</translation>
    </message>
    <message>
        <source>Web Space</source>
        <translation>Espacio web</translation>
    </message>
    <message>
        <source>Web address, as a browser finds it</source>
        <translation>Dirección web, como la halla un navegador</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Webcam or Analog Capture Card</source>
        <translation>Webcam o capturadora analógica</translation>
    </message>
    <message>
        <source>Webcam, Tuner Card/Cable</source>
        <translation>Webcam, sintonizadora</translation>
    </message>
    <message>
        <source>Welcome to Kinalyx</source>
        <translation>Bienvenido a Kinalyx</translation>
    </message>
    <message>
        <source>Welcome to the
Kinalyx
Motion
Analysis
Program</source>
        <translation>Bienvenido a
Kinalyx
Análisis del
movimiento
para entrenadores</translation>
    </message>
    <message>
        <source>What Is Done to Videos</source>
        <translation>Qué se hace con los vídeos</translation>
    </message>
    <message>
        <source>What answers is no {}. See whether name and port of "{}" are right.</source>
        <translation>Lo que responde no es un {}. Mire si el nombre y el puerto de "{}" son correctos.</translation>
    </message>
    <message>
        <source>What could not all be read is kept as "{}".</source>
        <translation>Lo que no se pudo leer se guarda como "{}".</translation>
    </message>
    <message>
        <source>What each line of a profile is called</source>
        <translation>Cómo se llama cada línea de un perfil</translation>
    </message>
    <message>
        <source>What goes in, from the first page to the last</source>
        <translation>Qué entra, de la primera página a la última</translation>
    </message>
    <message>
        <source>What has been converted and sent already is not done again.</source>
        <translation>Lo que ya se convirtió y envió no se repite.</translation>
    </message>
    <message>
        <source>What has been done</source>
        <translation>Lo que se ha hecho</translation>
    </message>
    <message>
        <source>What is seen here?</source>
        <translation>¿Qué se ve aquí?</translation>
    </message>
    <message>
        <source>What is ticked is copied to %1. Nothing is changed on the device.</source>
        <translation>Lo marcado se copia a %1. En el dispositivo no se cambia nada.</translation>
    </message>
    <message>
        <source>What of all that is plugged into it is heard</source>
        <translation>Qué se oye de todo lo conectado</translation>
    </message>
    <message>
        <source>What the macro is made of</source>
        <translation>De qué se compone la macro</translation>
    </message>
    <message>
        <source>What the report shows</source>
        <translation>Lo que muestra el informe</translation>
    </message>
    <message>
        <source>What the student shall read and work on</source>
        <translation>Lo que se leerá y trabajará</translation>
    </message>
    <message>
        <source>What the student shall read beneath the picture</source>
        <translation>Lo que se leerá debajo de la imagen</translation>
    </message>
    <message>
        <source>What was drawn is taken at once; a click takes the line under it; soft lines in colors that stand out</source>
        <translation>Lo dibujado queda tomado; un clic toma la línea de debajo; líneas suaves en colores que resaltan</translation>
    </message>
    <message>
        <source>What was drawn is taken at once; soft lines in colors that stand out</source>
        <translation>Lo dibujado queda tomado; líneas suaves en colores que resaltan</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Lo que se encontró</translation>
    </message>
    <message>
        <source>What was seen becomes a video of the student (K, Return, Page Down)</source>
        <translation>Lo que se vio pasa a ser un vídeo (K, Intro, Av Pág)</translation>
    </message>
    <message>
        <source>What you call one person: Student, Golfer, Client ...</source>
        <translation>Su palabra para una persona: alumno, cliente ...</translation>
    </message>
    <message>
        <source>What you have typed has not been saved. Do you want to close the form without saving it?</source>
        <translation>Lo que ha escrito no se ha guardado. ¿Desea cerrar el formulario sin guardarlo?</translation>
    </message>
    <message>
        <source>What you want to remember about this %1. Saved by itself.</source>
        <translation>Lo que quiera recordar (%1). Se guarda solo.</translation>
    </message>
    <message>
        <source>When movement jumps back and forth in a video of two fields</source>
        <translation>Cuando el movimiento salta adelante y atrás en un vídeo de dos campos</translation>
    </message>
    <message>
        <source>Where it plays as filmed</source>
        <translation>Donde va como se filmó</translation>
    </message>
    <message>
        <source>Where the window is high enough</source>
        <translation>Donde la ventana es bastante alta</translation>
    </message>
    <message>
        <source>Where videos come from</source>
        <translation>De dónde vienen los vídeos</translation>
    </message>
    <message>
        <source>Which camera the framed picture shows (C)</source>
        <translation>Qué cámara muestra la imagen enmarcada (C)</translation>
    </message>
    <message>
        <source>Which kinds of video can be opened here</source>
        <translation>Qué clases de vídeo se pueden abrir aquí</translation>
    </message>
    <message>
        <source>While a lesson is recorded, videos are dropped on a window or opened from the disk</source>
        <translation>Mientras se graba una lección, suelte vídeos en una ventana o ábralos del disco</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Whole Database</source>
        <translation>Toda la base</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Página entera</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <source>Width of drawings</source>
        <translation>Grosor de los dibujos</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Window %1</source>
        <translation>Ventana %1</translation>
    </message>
    <message>
        <source>Window mode</source>
        <translation>Modo de ventana</translation>
    </message>
    <message>
        <source>Window {}: {}</source>
        <translation>Ventana {}: {}</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>Windows at the start</source>
        <translation>Ventanas al inicio</translation>
    </message>
    <message>
        <source>Windows programs</source>
        <translation>programas de Windows</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Con</translation>
    </message>
    <message>
        <source>With a page that plays everywhere</source>
        <translation>Con una página que funciona en todas partes</translation>
    </message>
    <message>
        <source>With each check a line goes there: the day, and whether you or the start asked. No more, and nothing where the box is empty. While no server stands here nothing is contacted.</source>
        <translation>Con cada consulta va allí una línea: el día, y si preguntó usted o el inicio. Nada más, y nada si la casilla está vacía. Mientras no haya servidor, no se contacta con nadie.</translation>
    </message>
    <message>
        <source>With each check a line goes there: the day, and whether you or the start asked. No more.</source>
        <translation>Con cada consulta va allí una línea: el día, y si preguntó usted o el inicio. Nada más.</translation>
    </message>
    <message>
        <source>With how many pictures a second was this video taken? Slow motion plays more slowly than it was taken; times and speeds go by this rate.</source>
        <translation>¿Con cuántas imágenes por segundo se tomó este vídeo? La cámara lenta se reproduce más despacio; los tiempos y velocidades van por esta frecuencia.</translation>
    </message>
    <message>
        <source>Without Voice</source>
        <translation>Sin voz</translation>
    </message>
    <message>
        <source>Without encryption anybody on the way can read your password.</source>
        <translation>Sin cifrado cualquiera en el camino puede leer su contraseña.</translation>
    </message>
    <message>
        <source>Without it what was calibrated last measures every video</source>
        <translation>Sin esto, la última calibración mide todos los vídeos</translation>
    </message>
    <message>
        <source>Without it, large pictures become tape of 720 x 480, as in earlier versions</source>
        <translation>Sin esto, las imágenes grandes pasan a cinta de 720 x 480, como en versiones anteriores</translation>
    </message>
    <message>
        <source>Write what you see; it is kept with the video.</source>
        <translation>Escriba lo que ve; se guarda con el vídeo.</translation>
    </message>
    <message>
        <source>Writes</source>
        <translation>Escribe</translation>
    </message>
    <message>
        <source>Yahoo takes no password of the account here but an app password: a long one for this program alone. Your Yahoo account makes it under Security, Generate app password.</source>
        <translation>Yahoo no admite aquí la contraseña de la cuenta, sino una de aplicación: larga y solo para este programa. Su cuenta de Yahoo la crea en Seguridad, Generar contraseña de aplicación.</translation>
    </message>
    <message>
        <source>Years in Sport</source>
        <translation>Años de práctica</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>You and Your Company</source>
        <translation>Usted y su empresa</translation>
    </message>
    <message>
        <source>You are currently running version {} and the latest version is {}. Ask who gave you the address of the server for it: no page from which it could be fetched is set.</source>
        <translation>Usa la versión {} y la última es la {}. Pídala a quien le dio la dirección del servidor: no hay página de la que bajarla.</translation>
    </message>
    <message>
        <source>You are currently running version {} and the latest version is {}. Would you like to close Kinalyx and update now? If you choose not to update now, you can update later by going to "Program Setup" and clicking the "General" tab.</source>
        <translation>Usa la versión {} y la última es la {}. ¿Desea cerrar Kinalyx y actualizar ahora? Si no, puede hacerlo más tarde en "Configuración", en la pestaña "General".</translation>
    </message>
    <message>
        <source>You are running the latest version of the software.</source>
        <translation>Tiene la última versión del programa.</translation>
    </message>
    <message>
        <source>You may not use this drive. Ask whoever looks after the computer to add you to the group "cdrom", and log in again.</source>
        <translation>No puede usar esta unidad. Pida a quien cuida el equipo que le añada al grupo "cdrom", y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>You must add a email address before continuing.</source>
        <translation>Debe añadir un correo antes de continuar.</translation>
    </message>
    <message>
        <source>You must add a valid email address to continue.</source>
        <translation>Debe añadir un correo válido para continuar.</translation>
    </message>
    <message>
        <source>You must add a video before continuing.</source>
        <translation>Debe añadir un vídeo antes de continuar.</translation>
    </message>
    <message>
        <source>You must add some videos 1st!</source>
        <translation>¡Primero debe añadir vídeos!</translation>
    </message>
    <message>
        <source>You must enter a name for the new {}.</source>
        <translation>Debe escribir un nombre ({}).</translation>
    </message>
    <message>
        <source>You must fill in your name and Company name in Program Setup to use this feature.</source>
        <translation>Debe rellenar su nombre y el de su empresa en Configuración para usar esta función.</translation>
    </message>
    <message>
        <source>You must have a video open in window 1 to continue.</source>
        <translation>Debe tener un vídeo abierto en la ventana 1 para continuar.</translation>
    </message>
    <message>
        <source>You must have a video open to continue.</source>
        <translation>Debe tener un vídeo abierto para continuar.</translation>
    </message>
    <message>
        <source>You must name the lesson before saving!</source>
        <translation>¡Debe dar nombre a la lección antes de guardar!</translation>
    </message>
    <message>
        <source>You must name the video before saving!</source>
        <translation>¡Debe dar nombre al vídeo antes de guardar!</translation>
    </message>
    <message>
        <source>You must restart Kinalyx for this change to take effect.</source>
        <translation>Debe reiniciar Kinalyx para que este cambio tenga efecto.</translation>
    </message>
    <message>
        <source>You must select a Database and {} for the video.</source>
        <translation>Debe elegir base de datos y {} para el vídeo.</translation>
    </message>
    <message>
        <source>You must select a video first.</source>
        <translation>Primero debe elegir un vídeo.</translation>
    </message>
    <message>
        <source>You must select a {} before beginning to Record</source>
        <translation>Debe elegir {} antes de empezar a grabar</translation>
    </message>
    <message>
        <source>You must select a {} before continuing.</source>
        <translation>Debe elegir {} antes de continuar.</translation>
    </message>
    <message>
        <source>You must select a {} first.</source>
        <translation>Primero debe elegir {}.</translation>
    </message>
    <message>
        <source>You must select an Instructor or Database first.</source>
        <translation>Primero debe elegir un monitor o una base de datos.</translation>
    </message>
    <message>
        <source>You must type a name!</source>
        <translation>¡Debe escribir un nombre!</translation>
    </message>
    <message>
        <source>Your Passwords</source>
        <translation>Sus contraseñas</translation>
    </message>
    <message>
        <source>Your TRIM Start and End times are not correct. Please check your Start and End times and try again.</source>
        <translation>El principio y el final del recorte no son correctos. Revíselos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your club or association tells it, if it has one. While nothing stands here nothing is contacted.</source>
        <translation>Lo dice su club o federación, si tiene uno. Mientras no haya nada aquí, no se contacta con nadie.</translation>
    </message>
    <message>
        <source>Your desktop asks which screen may be recorded. Choose it there, and the lesson begins.</source>
        <translation>Su escritorio pregunta qué pantalla se puede grabar. Elíjala allí y la lección empezará.</translation>
    </message>
    <message>
        <source>Your e-mail address</source>
        <translation>Su dirección de correo</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Su nombre</translation>
    </message>
    <message>
        <source>Your own e-mail address in Program Setup, Internet, is no address.</source>
        <translation>Su propio correo en Configuración, Internet, no es una dirección.</translation>
    </message>
    <message>
        <source>Your own e-mail address is not set yet. Type it in Program Setup, Internet.</source>
        <translation>Falta su propia dirección de correo. Escríbala en Configuración, Internet.</translation>
    </message>
    <message>
        <source>Your voice, %1 s</source>
        <translation>Su voz, %1 s</translation>
    </message>
    <message>
        <source>Z - Zoom Videos</source>
        <translation>Z - Ampliar vídeos</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Zona</translation>
    </message>
    <message>
        <source>Zone Tool</source>
        <translation>Zona</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom and pan move video %1</source>
        <translation>Zoom y desplazamiento mueven el vídeo %1</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>Acercar (+)</translation>
    </message>
    <message>
        <source>Zoom of the current window</source>
        <translation>Zoom de la ventana actual</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>Alejar (-)</translation>
    </message>
    <message>
        <source>a Angle</source>
        <translation>un ángulo</translation>
    </message>
    <message>
        <source>a Arrow</source>
        <translation>una flecha</translation>
    </message>
    <message>
        <source>a Circle</source>
        <translation>un círculo</translation>
    </message>
    <message>
        <source>a Circle from its Center</source>
        <translation>un círculo desde su centro</translation>
    </message>
    <message>
        <source>a Clock Grid</source>
        <translation>un reloj</translation>
    </message>
    <message>
        <source>a Line</source>
        <translation>una línea</translation>
    </message>
    <message>
        <source>a Parallelogram</source>
        <translation>un paralelogramo</translation>
    </message>
    <message>
        <source>a Path Trace</source>
        <translation>una ruta</translation>
    </message>
    <message>
        <source>a Plus Sign</source>
        <translation>un signo más</translation>
    </message>
    <message>
        <source>a Square</source>
        <translation>un cuadrado</translation>
    </message>
    <message>
        <source>a Zone</source>
        <translation>una zona</translation>
    </message>
    <message>
        <source>a loop has no sound</source>
        <translation>un bucle no tiene sonido</translation>
    </message>
    <message>
        <source>a picture cannot be converted</source>
        <translation>una imagen no se puede convertir</translation>
    </message>
    <message>
        <source>a picture cannot be decoded</source>
        <translation>una imagen no se puede decodificar</translation>
    </message>
    <message>
        <source>a picture of another size</source>
        <translation>una imagen de otro tamaño</translation>
    </message>
    <message>
        <source>a video of this kind cannot be a single picture; keep two or more. It is unchanged</source>
        <translation>un vídeo de esta clase no puede ser de una sola imagen; conserve dos o más. Queda como estaba</translation>
    </message>
    <message>
        <source>absurd picture size: {} x {}</source>
        <translation>tamaño de imagen absurdo: {} x {}</translation>
    </message>
    <message>
        <source>belongs to a server of another name. Compare the name in the settings with what your provider says</source>
        <translation>pertenece a un servidor con otro nombre. Compare el nombre de los ajustes con lo que dice su proveedor</translation>
    </message>
    <message>
        <source>cannot be checked</source>
        <translation>no se puede comprobar</translation>
    </message>
    <message>
        <source>centimeter</source>
        <translation>centímetro</translation>
    </message>
    <message>
        <source>click one end, the corner, the other end</source>
        <translation>un extremo, el vértice y el otro extremo</translation>
    </message>
    <message>
        <source>counted by the program</source>
        <translation>lo cuenta el programa</translation>
    </message>
    <message>
        <source>d MMM, HH:mm</source>
        <translation>d MMM, HH:mm</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>eliminar</translation>
    </message>
    <message>
        <source>editing programs</source>
        <translation>programas de edición</translation>
    </message>
    <message>
        <source>en</source>
        <translation>es</translation>
    </message>
    <message>
        <source>foot</source>
        <translation>pie</translation>
    </message>
    <message>
        <source>has run out. Either the server has forgotten to renew it, or the clock of this computer is wrong</source>
        <translation>ha caducado. O el servidor olvidó renovarlo, o el reloj de este equipo va mal</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>pulgada</translation>
    </message>
    <message>
        <source>is not valid yet. The clock of this computer may be wrong</source>
        <translation>aún no es válido. El reloj de este equipo puede ir mal</translation>
    </message>
    <message>
        <source>is signed by nobody whom this computer trusts</source>
        <translation>no lo firma nadie en quien confíe este equipo</translation>
    </message>
    <message>
        <source>it has just been made by somebody else</source>
        <translation>alguien acaba de crearla</translation>
    </message>
    <message>
        <source>it is being written</source>
        <translation>se está escribiendo</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>bucle</translation>
    </message>
    <message>
        <source>loop 1/2</source>
        <translation>bucle 1/2</translation>
    </message>
    <message>
        <source>loop 1/4</source>
        <translation>bucle 1/4</translation>
    </message>
    <message>
        <source>loop, still</source>
        <translation>bucle, quieto</translation>
    </message>
    <message>
        <source>mail server</source>
        <translation>servidor de correo</translation>
    </message>
    <message>
        <source>meter</source>
        <translation>metro</translation>
    </message>
    <message>
        <source>move</source>
        <translation>mover</translation>
    </message>
    <message>
        <source>newer telephones</source>
        <translation>teléfonos recientes</translation>
    </message>
    <message>
        <source>no decoder</source>
        <translation>no hay decodificador</translation>
    </message>
    <message>
        <source>no decoder for {}</source>
        <translation>no hay decodificador para {}</translation>
    </message>
    <message>
        <source>no encoder takes these pictures</source>
        <translation>ningún codificador admite estas imágenes</translation>
    </message>
    <message>
        <source>no lesson has this size</source>
        <translation>ninguna lección tiene este tamaño</translation>
    </message>
    <message>
        <source>no picture has this size</source>
        <translation>ninguna imagen tiene este tamaño</translation>
    </message>
    <message>
        <source>no picture of the video can be decoded</source>
        <translation>ninguna imagen del vídeo se puede decodificar</translation>
    </message>
    <message>
        <source>no video stream</source>
        <translation>no hay flujo de vídeo</translation>
    </message>
    <message>
        <source>nobody yet</source>
        <translation>nadie aún</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>now</source>
        <translation>ahora</translation>
    </message>
    <message>
        <source>old discs</source>
        <translation>discos antiguos</translation>
    </message>
    <message>
        <source>old imports</source>
        <translation>importaciones antiguas</translation>
    </message>
    <message>
        <source>old telephones (3GP)</source>
        <translation>teléfonos antiguos (3GP)</translation>
    </message>
    <message>
        <source>older cameras, DivX, Xvid</source>
        <translation>cámaras antiguas, DivX, Xvid</translation>
    </message>
    <message>
        <source>one click on each picture, which moves on by itself; a right click ends it</source>
        <translation>un clic en cada imagen, que avanza sola; un clic derecho termina</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>memoria agotada</translation>
    </message>
    <message>
        <source>remembers {} s, {} MiB of {}</source>
        <translation>recuerda {} s, {} MiB de {}</translation>
    </message>
    <message>
        <source>rename</source>
        <translation>renombrar</translation>
    </message>
    <message>
        <source>server</source>
        <translation>servidor</translation>
    </message>
    <message>
        <source>still</source>
        <translation>quieto</translation>
    </message>
    <message>
        <source>student</source>
        <translation>alumno</translation>
    </message>
    <message>
        <source>students</source>
        <translation>alumnos</translation>
    </message>
    <message>
        <source>tape camcorders, imported tape</source>
        <translation>videocámaras de cinta, cinta importada</translation>
    </message>
    <message>
        <source>telephones, action cameras, camcorders</source>
        <translation>teléfonos, cámaras deportivas, videocámaras</translation>
    </message>
    <message>
        <source>the clip has no sound</source>
        <translation>el clip no tiene sonido</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>el disco está lleno.</translation>
    </message>
    <message>
        <source>the drive cannot be read or written. It may have been pulled out.</source>
        <translation>la unidad no se puede leer o escribir. Puede que se haya retirado.</translation>
    </message>
    <message>
        <source>the drive does not answer</source>
        <translation>la unidad no responde</translation>
    </message>
    <message>
        <source>the drive is not answering</source>
        <translation>la unidad no responde</translation>
    </message>
    <message>
        <source>the end lies before the start</source>
        <translation>el final está antes del principio</translation>
    </message>
    <message>
        <source>the file cannot be read there</source>
        <translation>el archivo no se puede leer ahí</translation>
    </message>
    <message>
        <source>the file cannot be read to the end of the cut</source>
        <translation>el archivo no se puede leer hasta el final del corte</translation>
    </message>
    <message>
        <source>the file cannot grow any more</source>
        <translation>el archivo ya no puede crecer</translation>
    </message>
    <message>
        <source>the file has gone</source>
        <translation>el archivo ya no está</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>the last frame lies before the first</source>
        <translation>el último fotograma está antes del primero</translation>
    </message>
    <message>
        <source>the new file cannot be completed</source>
        <translation>el archivo nuevo no se puede completar</translation>
    </message>
    <message>
        <source>the notes that are there cannot be read</source>
        <translation>no se pueden leer las notas existentes</translation>
    </message>
    <message>
        <source>the old web</source>
        <translation>la web antigua</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>la imagen es demasiado grande</translation>
    </message>
    <message>
        <source>the pictures are not all stored in the same way</source>
        <translation>no todas las imágenes están guardadas del mismo modo</translation>
    </message>
    <message>
        <source>the profile</source>
        <translation>el perfil</translation>
    </message>
    <message>
        <source>the recording holds no picture</source>
        <translation>la grabación no contiene imágenes</translation>
    </message>
    <message>
        <source>the recording is closed</source>
        <translation>la grabación está cerrada</translation>
    </message>
    <message>
        <source>the recording is too badly damaged</source>
        <translation>la grabación está demasiado dañada</translation>
    </message>
    <message>
        <source>the sides of the picture must be even</source>
        <translation>los lados de la imagen deben ser pares</translation>
    </message>
    <message>
        <source>the sound cannot be read</source>
        <translation>no se puede leer el sonido</translation>
    </message>
    <message>
        <source>the sound of this video cannot be cut</source>
        <translation>el sonido de este vídeo no se puede cortar</translation>
    </message>
    <message>
        <source>the stream cannot be read</source>
        <translation>el flujo no se puede leer</translation>
    </message>
    <message>
        <source>the video is read-only</source>
        <translation>el vídeo es de solo lectura</translation>
    </message>
    <message>
        <source>the video stream holds no picture</source>
        <translation>el flujo de vídeo no contiene imágenes</translation>
    </message>
    <message>
        <source>the web</source>
        <translation>la web</translation>
    </message>
    <message>
        <source>there are a thousand files of that name already</source>
        <translation>ya hay mil archivos con ese nombre</translation>
    </message>
    <message>
        <source>there is already a file of that name</source>
        <translation>ya hay un archivo con ese nombre</translation>
    </message>
    <message>
        <source>there is already something of that name.</source>
        <translation>ya hay algo con ese nombre.</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>no hay imagen</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>no hay bastante espacio en el disco</translation>
    </message>
    <message>
        <source>this drive cannot keep others from reading the file</source>
        <translation>esta unidad no puede impedir que otros lean el archivo</translation>
    </message>
    <message>
        <source>this is no recording that was broken off</source>
        <translation>esto no es una grabación interrumpida</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>esta ventana</translation>
    </message>
    <message>
        <source>unknown reason</source>
        <translation>motivo desconocido</translation>
    </message>
    <message>
        <source>videos in this kind of file cannot be cut</source>
        <translation>los vídeos en esta clase de archivo no se pueden cortar</translation>
    </message>
    <message>
        <source>videos of this kind can be cut at some pictures only, and not at these</source>
        <translation>los vídeos de esta clase solo se pueden cortar en algunas imágenes, y no en estas</translation>
    </message>
    <message>
        <source>webcams, what is imported here</source>
        <translation>cámaras web, lo que aquí se importa</translation>
    </message>
    <message>
        <source>you alone can read the file</source>
        <translation>solo usted puede leer el archivo</translation>
    </message>
    <message>
        <source>{0} {1} {2}</source>
        <translation>{0} de {1} de {2}</translation>
    </message>
    <message>
        <source>{:g} s ago</source>
        <translation>hace {:g} s</translation>
    </message>
    <message>
        <source>{:g} s behind: first picture in {} s</source>
        <translation>{:g} s de retardo: primera imagen en {} s</translation>
    </message>
    <message>
        <source>{}

{} of {} pictures were shown.</source>
        <translation>{}

Se mostraron {} de {} imágenes.</translation>
    </message>
    <message>
        <source>{}  max {}</source>
        <translation>{}  máx. {}</translation>
    </message>
    <message>
        <source>{} % Free</source>
        <translation>{} % libre</translation>
    </message>
    <message>
        <source>{} (image file)</source>
        <translation>{} (archivo de imagen)</translation>
    </message>
    <message>
        <source>{} - Home key</source>
        <translation>Inicio - {}</translation>
    </message>
    <message>
        <source>{} - Report</source>
        <translation>{} - Informe</translation>
    </message>
    <message>
        <source>{} - Videos Attached</source>
        <translation>{} - Vídeos adjuntos</translation>
    </message>
    <message>
        <source>{} BPP</source>
        <translation>{} BPP</translation>
    </message>
    <message>
        <source>{} Bit</source>
        <translation>{} bits</translation>
    </message>
    <message>
        <source>{} Choose another microphone, or record without.</source>
        <translation>{} Elija otro micrófono, o grabe sin él.</translation>
    </message>
    <message>
        <source>{} Err 3</source>
        <translation>{} Err 3</translation>
    </message>
    <message>
        <source>{} Err 4</source>
        <translation>{} Err 4</translation>
    </message>
    <message>
        <source>{} Err 4

{}</source>
        <translation>{} Err 4

{}</translation>
    </message>
    <message>
        <source>{} FPS</source>
        <translation>{} FPS</translation>
    </message>
    <message>
        <source>{} File(s) Imported successfully!</source>
        <translation>¡{} archivo(s) importados!</translation>
    </message>
    <message>
        <source>{} File(s) exported successfully!</source>
        <translation>¡{} archivo(s) exportados!</translation>
    </message>
    <message>
        <source>{} Files Copied Successfully.</source>
        <translation>{} archivos copiados.</translation>
    </message>
    <message>
        <source>{} Frames</source>
        <translation>{} fotogramas</translation>
    </message>
    <message>
        <source>{} Name</source>
        <translation>Nombre: {}</translation>
    </message>
    <message>
        <source>{} Notes</source>
        <translation>Notas: {}</translation>
    </message>
    <message>
        <source>{} Nothing was changed.</source>
        <translation>{} No se cambió nada.</translation>
    </message>
    <message>
        <source>{} Profile</source>
        <translation>Perfil: {}</translation>
    </message>
    <message>
        <source>{} Profiles</source>
        <translation>Perfiles: {}</translation>
    </message>
    <message>
        <source>{} Profiles Edit Utility</source>
        <translation>Editor de perfiles: {}</translation>
    </message>
    <message>
        <source>{} Seconds</source>
        <translation>{} segundos</translation>
    </message>
    <message>
        <source>{} Successfully Moved to {} .</source>
        <translation>{}: movido a {} .</translation>
    </message>
    <message>
        <source>{} Successfully removed from the system.</source>
        <translation>Quitado del sistema: {}.</translation>
    </message>
    <message>
        <source>{} The lists fill as soon as it does.</source>
        <translation>{} Las listas se llenan en cuanto responda.</translation>
    </message>
    <message>
        <source>{} The old file may lie there under the name "{}".</source>
        <translation>{} El archivo anterior puede estar allí con el nombre "{}".</translation>
    </message>
    <message>
        <source>{} Videos Successfully Deleted!</source>
        <translation>¡{} vídeos eliminados!</translation>
    </message>
    <message>
        <source>{} What it saw before goes on for {} s.</source>
        <translation>{} Lo que vio antes sigue {} s más.</translation>
    </message>
    <message>
        <source>{} What was recorded is kept.</source>
        <translation>{} Lo grabado se conserva.</translation>
    </message>
    <message>
        <source>{} What was recorded is kept. Click Save Video to continue..</source>
        <translation>{} Lo grabado se conserva. Pulse Guardar vídeo para seguir..</translation>
    </message>
    <message>
        <source>{} What was written is kept.</source>
        <translation>{} Lo escrito se conserva.</translation>
    </message>
    <message>
        <source>{} already exists.</source>
        <translation>{} ya existe.</translation>
    </message>
    <message>
        <source>{} bytes</source>
        <translation>{} bytes</translation>
    </message>
    <message>
        <source>{} came or changed while {} was moved, and stayed in the old place: {}</source>
        <translation>{} llegó o cambió mientras se movía {}, y quedó en el sitio anterior: {}</translation>
    </message>
    <message>
        <source>{} cannot be moved to the trash. Do you want to delete it for good?</source>
        <translation>{} no puede ir a la papelera. ¿Desea eliminar definitivamente?</translation>
    </message>
    <message>
        <source>{} cannot be opened.</source>
        <translation>No se puede abrir {}.</translation>
    </message>
    <message>
        <source>{} cannot be removed.</source>
        <translation>No se puede quitar {}.</translation>
    </message>
    <message>
        <source>{} cannot go into itself.</source>
        <translation>{} no puede ir dentro de sí mismo.</translation>
    </message>
    <message>
        <source>{} could not be removed</source>
        <translation>No se pudo quitar {}</translation>
    </message>
    <message>
        <source>{} could not be removed from its old place: {}</source>
        <translation>{} no se pudo quitar de su sitio anterior: {}</translation>
    </message>
    <message>
        <source>{} could not be renamed</source>
        <translation>No se pudo renombrar {}</translation>
    </message>
    <message>
        <source>{} exists already.</source>
        <translation>{} ya existe.</translation>
    </message>
    <message>
        <source>{} files selected for download.</source>
        <translation>{} archivos elegidos para descargar.</translation>
    </message>
    <message>
        <source>{} files that the lists do not show: {}</source>
        <translation>{} archivos que las listas no muestran: {}</translation>
    </message>
    <message>
        <source>{} files were copied that cannot be opened. They may be damaged, or be no videos:
</source>
        <translation>{} archivos copiados no se pueden abrir. Pueden estar dañados, o no ser vídeos:
</translation>
    </message>
    <message>
        <source>{} is a link to another folder.</source>
        <translation>{} es un enlace a otra carpeta.</translation>
    </message>
    <message>
        <source>{} is no file.</source>
        <translation>{} no es un archivo.</translation>
    </message>
    <message>
        <source>{} is not connected.</source>
        <translation>{} no está conectado.</translation>
    </message>
    <message>
        <source>{} is not connected. Plug it in, and it shows here.</source>
        <translation>{} no está conectada. Conéctela y se verá aquí.</translation>
    </message>
    <message>
        <source>{} lessons</source>
        <translation>{} lecciones</translation>
    </message>
    <message>
        <source>{} lies too deep in its folders.</source>
        <translation>{} está demasiado hondo en sus carpetas.</translation>
    </message>
    <message>
        <source>{} of {} Videos Successfully Imported.</source>
        <translation>{} de {} vídeos importados.</translation>
    </message>
    <message>
        <source>{} of {} Videos Successfully exported.....Please wait...</source>
        <translation>{} de {} vídeos exportados.....Espere...</translation>
    </message>
    <message>
        <source>{} of {} files added to the Files to Send list.</source>
        <translation>{} de {} archivos añadidos a la lista de envío.</translation>
    </message>
    <message>
        <source>{} of {} files added to the Files to Send list; the others are in it already.</source>
        <translation>{} de {} archivos añadidos a la lista de envío; los demás ya están.</translation>
    </message>
    <message>
        <source>{} of {} videos were moved.</source>
        <translation>Se movieron {} de {} vídeos.</translation>
    </message>
    <message>
        <source>{} of {} videos were sent to Analysis. {}</source>
        <translation>{} de {} vídeos enviados al análisis. {}</translation>
    </message>
    <message>
        <source>{} pictures are queued for emailing, and no more fit into one mail. Send or delete some of them first.</source>
        <translation>Hay {} imágenes en cola, y no caben más en un correo. Envíe o elimine algunas antes.</translation>
    </message>
    <message>
        <source>{} pictures have not been sent by e-mail. Leaving the analysis section deletes them. Do you want to leave?</source>
        <translation>{} imágenes no se han enviado por correo. Al salir del análisis se eliminan. ¿Desea salir?</translation>
    </message>
    <message>
        <source>{} pictures of an earlier session have not been sent. Do you want to delete them? If not, they come before the new ones.</source>
        <translation>{} imágenes de una sesión anterior no se enviaron. ¿Desea eliminarlas? Si no, van antes de las nuevas.</translation>
    </message>
    <message>
        <source>{} rename cancelled.</source>
        <translation>{}: cambio de nombre cancelado.</translation>
    </message>
    <message>
        <source>{} seconds | {}/{} frames  </source>
        <translation>{} segundos | {}/{} fotogramas  </translation>
    </message>
    <message>
        <source>{} settings in {} could not be read ({}), so their first values hold for this run</source>
        <translation>No se pudieron leer {} ajustes en {} ({}); valen sus primeros valores por esta vez</translation>
    </message>
    <message>
        <source>{} still has {} or videos. Move or delete them first.</source>
        <translation>{} todavía tiene {} o vídeos. Muévalos o elimínelos primero.</translation>
    </message>
    <message>
        <source>{} successfully added!</source>
        <translation>¡{} añadido!</translation>
    </message>
    <message>
        <source>{} successfully removed from the system.</source>
        <translation>Quitado del sistema: {}.</translation>
    </message>
    <message>
        <source>{} successfully renamed.</source>
        <translation>Renombrado: {}.</translation>
    </message>
    <message>
        <source>{} this database</source>
        <translation>{} la base de datos</translation>
    </message>
    <message>
        <source>{} this {}</source>
        <translation>{} {}</translation>
    </message>
    <message>
        <source>{} videos could not be taken:
</source>
        <translation>No se pudieron tomar {} vídeos:
</translation>
    </message>
    <message>
        <source>{} videos left to import</source>
        <translation>Quedan {} vídeos por importar</translation>
    </message>
    <message>
        <source>{} videos on "{}", all of them new</source>
        <translation>{} vídeos en "{}", todos nuevos</translation>
    </message>
    <message>
        <source>{} videos on "{}", {} of them new</source>
        <translation>{} vídeos en "{}", {} nuevos</translation>
    </message>
    <message>
        <source>{} videos successfully moved.</source>
        <translation>{} vídeos movidos.</translation>
    </message>
    <message>
        <source>{} videos were closed.</source>
        <translation>Se cerraron {} vídeos.</translation>
    </message>
    <message>
        <source>{} videos were sent to Analysis.</source>
        <translation>{} vídeos enviados al análisis.</translation>
    </message>
    <message>
        <source>{} videos with all drawings and notes</source>
        <translation>{} vídeos con todos los dibujos y notas</translation>
    </message>
    <message>
        <source>{} {} without videos went along with profile and notes.</source>
        <translation>{} {} sin vídeos también, con perfil y notas.</translation>
    </message>
    <message>
        <source>{} {}'s</source>
        <translation>{} × {}</translation>
    </message>
    <message>
        <source>{}% complete</source>
        <translation>{}% completo</translation>
    </message>
    <message>
        <source>{}, {} a second</source>
        <translation>{}, {} por segundo</translation>
    </message>
    <message>
        <source>{}, {} of {}</source>
        <translation>{}, {} de {}</translation>
    </message>
    <message>
        <source>{}, {}% complete</source>
        <translation>{}, {}% completo</translation>
    </message>
    <message>
        <source>{}. It is not there any more: somebody else has renamed, moved or deleted it.</source>
        <translation>{}. Ya no está: alguien lo ha renombrado, movido o eliminado.</translation>
    </message>
    <message>
        <source>{}Camera {} recorded nothing.</source>
        <translation>{}La cámara {} no grabó nada.</translation>
    </message>
    <message>
        <source>{}empty.</source>
        <translation>{}vacío.</translation>
    </message>
    <message>
        <source>{}has been written already and cannot be erased.</source>
        <translation>{}ya está escrito y no se puede borrar.</translation>
    </message>
    <message>
        <source>{}holds something already, and can be erased.</source>
        <translation>{}ya contiene algo, y se puede borrar.</translation>
    </message>
    <message>
        <source>{}keypad {}</source>
        <translation>{}num. {}</translation>
    </message>
    <message>
        <source>{}{}what the drive gave back is not what was written to it. The original is still in its place. Try again; if it happens once more, the drive, the card reader or its cable is failing.</source>
        <translation>{}{}lo que devolvió la unidad no es lo que se escribió en ella. El original sigue en su sitio. Inténtelo de nuevo; si vuelve a pasar, fallan la unidad, el lector de tarjetas o su cable.</translation>
    </message>
    <message>
        <source>{}°- {}° angle H-V     {}</source>
        <translation>{}°- {}° ángulo H-V     {}</translation>
    </message>
</context>
</TS>
