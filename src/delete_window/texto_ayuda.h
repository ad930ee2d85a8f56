// The help of the delete confirmation: 1407 characters, its lines ended by CR LF.
#pragma once

#include <QString>

inline const QString TextoAyuda = QStringLiteral(
    "     SI DECIDE NO MOSTRAR MÁS ESTA VENTANA:\r\n"
    "  --------------------------------------------------------------------------------------\r\n"
    "\r\n"
    "1. Cuando haga clic sobre el icono «Borrar archivo» (papelera) el archivo seleccionado se "
    "enviará a la papelera de reciclaje sin solicitar confirmación.\r\n"
    "\r\n"
    "2. Para eliminar un archivo de la lista de «Archivos» sencillamente selecciónelo y pulse la "
    "tecla «Suprimir» (en el teclado «Supr»). De este modo se quitará el archivo de la lista de "
    "«Archivos» pero no se enviará a la papelera de reciclaje.\r\n"
    "\r\n"
    "3. Si quiere volver a activar que el programa muestre esta ventana solicitando qué hacer con "
    "el archivo al hacer clic sobre la «papelera» puede hacerlo desde las opciones del programa "
    "activando la opción «Mostrar diálogo al eliminar un archivo».\r\n"
    "\r\n"
    "4. Para CANCELAR esta operación sólo cierre esta ventana. No se enviará el archivo "
    "seleccionado a la papelera de reciclaje y tampoco se quitará de la lista de «Archivos».\r\n"
    "\r\n"
    "MUY IMPORTANTE: El fichero será movido a la papelera de reciclaje si usted tiene esa opción "
    "activa en su sistema operativo. Es decir si en las propiedades de la papelera de reciclaje "
    "tiene activada la opción «No mover archivos a la papelera. Purgarlos al eliminarlos» el "
    "archivo que elimine desde este programa no se podrá mover a la papelera. Si este caso se "
    "diera el programa solicitaría confirmación antes de eliminar el archivo seleccionado.\r\n");
